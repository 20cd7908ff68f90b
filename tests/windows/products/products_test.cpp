// The registered servers in this process, as a compiled host has them.
#include <functional>
#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/com_factory.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"
#include "tests/windows/desktop/leftovers.h"

using late::Value;
using windows::Bstr;
using windows::ComPtr;

namespace {

using CanUnload = HRESULT(STDAPICALLTYPE*)();

bool CanUnloadNow(const wchar_t* server) {
  const HMODULE module = GetModuleHandleW(server);
  const auto ask = reinterpret_cast<CanUnload>(reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
  return module && ask && ask() == S_OK;
}

/// While it lives, every form and message of this thread is closed as it comes up.
class PressingOn {
 public:
  PressingOn() : timer_(SetTimer(nullptr, 0, 10, Look)) { forms = messages = 0; }
  PressingOn(const PressingOn&) = delete;
  PressingOn& operator=(const PressingOn&) = delete;
  ~PressingOn() { KillTimer(nullptr, timer_); }

  static inline int forms = 0;
  static inline int messages = 0;

 private:
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
    for (HWND window : windows::WindowsOfThread()) {
      if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
      if (windows::IsOfClass(window, L"#32770")) {
        ++messages;
        PostMessageW(window, WM_COMMAND, IDOK, 0);
      }
      if (windows::IsOfClass(window, L"ShopForm")) {
        ++forms;
        PostMessageW(window, WM_CLOSE, 0, 0);
      }
    }
  }

  UINT_PTR timer_;
};

ULONG References(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

class Host : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK); }
  static void TearDownTestSuite() { CoUninitialize(); }

  late::ObjectPtr LoggedOn(const late::ObjectPtr& connection) {
    const late::ObjectPtr request = factory.Create("tq8v4461.clsGoodsRequest");
    request->PutRef("adocon", connection);
    request->Put("strMsgboxCaption", "Goods Request");
    request->Put("intCompanyID", std::int32_t{1});
    request->Put("intUserID", std::int32_t{1});
    request->Put("intShopID", std::int32_t{1});
    request->Put("dtProcessDate", vb::MakeDate(2024, 3, 15));
    return request;
  }

  windows::ComFactory factory;
};

/// A combo box of another component, as the general helper sees it.
class OtherCombo : public late::TableObject<OtherCombo> {
 public:
  static const late::MemberTable<OtherCombo>& Members() {
    static const late::MemberTable<OtherCombo> table{
        {"ListCount", [](OtherCombo&, late::Arguments&) { return Value(std::int32_t{3}); }, nullptr},
        {"List", [](OtherCombo&, late::Arguments& arguments) { return Value("entry " + arguments[0].ToText()); }, nullptr, 1, 1},
        {"ItemData", [](OtherCombo&, late::Arguments& arguments) { return Value(arguments[0].ToInt32() * 10); }, nullptr, 1, 1},
        {"ListIndex", [](OtherCombo& self, late::Arguments&) { return Value(self.listIndex); },
         [](OtherCombo& self, late::Arguments& arguments) { self.listIndex = arguments[0].ToInt32(); }},
    };
    return table;
  }
  std::string TypeName() const override { return "ComboBox"; }
  std::int32_t listIndex = -1;
};

}  // namespace

TEST_F(Host, AnUnknownComponentCannotBeCreated) {
  try {
    factory.Create("Nobody.clsNothing");
    FAIL();
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), vb::kCannotCreateObject);
    EXPECT_NE(error.Description().find("Nobody.clsNothing"), std::string::npos);
  }
}

TEST_F(Host, TheTypeLibraryListsTheFaceInItsOrder) {
  const late::ObjectPtr request = factory.Create("tq8v4461.clsGoodsRequest");
  const auto& dispatch = static_cast<windows::DispatchObject&>(*request).Dispatch();
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(dispatch->GetTypeInfo(0, 0, info.Receive()), S_OK);
  ComPtr<ITypeLib> library;
  UINT index = 0;
  ASSERT_EQ(info->GetContainingTypeLib(library.Receive(), &index), S_OK);
  BSTR name = nullptr;
  BSTR text = nullptr;
  library->GetDocumentation(-1, &name, &text, nullptr, nullptr);
  EXPECT_EQ(Bstr(name).Text(), "tq8v4461");
  EXPECT_EQ(Bstr(text).Text(), "Request to Hq");
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  std::vector<std::string> members;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    ASSERT_EQ(info->GetFuncDesc(i, &function), S_OK);
    BSTR member = nullptr;
    if (function->memid >= 1 && function->memid <= 7) {
      info->GetDocumentation(function->memid, &member, nullptr, nullptr, nullptr);
      members.push_back(Bstr(member).Text() + ":" + std::to_string(function->invkind));
    }
    info->ReleaseFuncDesc(function);
  }
  info->ReleaseTypeAttr(attributes);
  EXPECT_EQ(members, (std::vector<std::string>{"adocon:2", "adocon:4", "adocon:8", "strMsgboxCaption:2", "strMsgboxCaption:4",
                                               "intCompanyID:2", "intCompanyID:4", "intUserID:2", "intUserID:4", "intShopID:2",
                                               "intShopID:4", "dtProcessDate:2", "dtProcessDate:4", "Show:1"}));
  EXPECT_EQ(request->TypeName(), "clsGoodsRequest");
}

TEST_F(Host, AHelperWorksOnAControlOfAnotherComponent) {
  const auto combo = std::make_shared<OtherCombo>();
  factory.Create("ShopCommon.clsCommonGen")->Call("SelectComboItemByValue", {combo, std::int32_t{20}});
  EXPECT_EQ(combo->listIndex, 2);
}

TEST_F(Host, AnErrorOfTheDatabaseCrossesTheHelperUnchanged) {
  const late::ObjectPtr database = factory.Create("ShopSuite.Database");
  const late::ObjectPtr connection = database->Call("Open").ToObject();
  long direct = 0;
  try {
    connection->Call("Execute", {"select x from nowhere"});
  } catch (const vb::RunTimeError& error) {
    direct = error.Number();
  }
  EXPECT_NE(direct, 0);
  const late::ObjectPtr helper = factory.Create("ShopCommon.clsCommonDB");
  helper->PutRef("adocon", connection);
  helper->Put("strTableName", "nowhere");
  try {
    helper->Call("fnReturnField", {"x"});
    FAIL();
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), direct);
    EXPECT_NE(error.Description().find("nowhere"), std::string::npos);
  }
}

TEST_F(Host, RecordsetsForTheEmbeddedConnectionAreTheEmbeddedOnes) {
  const late::ObjectPtr database = factory.Create("ShopSuite.Database");
  const late::ObjectPtr connection = database->Call("Open").ToObject();
  const late::ObjectPtr rows = factory.Create("ADODB.Recordset");
  rows->Call("Open", {"select * from aShops", connection, std::int32_t{3}, std::int32_t{4}});
  EXPECT_EQ(rows->Get("RecordCount").ToInt32(), 3);
  const auto block = rows->Call("GetRows", {std::int32_t{2}}).ToArray();
  EXPECT_EQ(block->columns, 2u);
  EXPECT_EQ(block->At(1, 0).ToText(), "Harbour Street");
}

TEST_F(Host, FiftyShowsLeaveNothingBehind) {
  late::ObjectPtr database = factory.Create("ShopSuite.Database");
  late::ObjectPtr connection = database->Call("Open").ToObject();
  auto* face = static_cast<windows::DispatchObject&>(*connection).Dispatch().Get();
  const ULONG references = References(face);
  std::size_t windows = 0;
  std::size_t graphics = 0;
  DWORD handles = 0;
  {
    const PressingOn pressing;
    LoggedOn(connection)->Call("Show");
    EXPECT_EQ(PressingOn::forms, 1) << "the register and nothing else";
    // What the system keeps from the first time on is not counted.
    windows = counter::Windows();
    graphics = counter::GraphicsObjects();
    handles = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    ASSERT_GT(graphics, 0u);
    for (int i = 1; i < 50; ++i) LoggedOn(connection)->Call("Show");
    EXPECT_EQ(PressingOn::messages, 0) << "the connection serves the last Show as the first";
  }
  EXPECT_EQ(counter::Windows(), windows);
  EXPECT_LE(counter::GraphicsObjects(), graphics + 4) << "less than one in ten Shows";
  EXPECT_EQ(References(face), references);
  EXPECT_EQ(FindWindowW(L"ShopForm", nullptr), nullptr);
  // Where the system counts its handles itself, menus and timers are among them.
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), handles + 4);
  EXPECT_TRUE(CanUnloadNow(L"tq8v4461.dll"));
  connection.reset();
  database.reset();
  EXPECT_TRUE(CanUnloadNow(L"shopsuite.dll"));
}

TEST_F(Host, WithoutAConnectionTheComponentMakesOne) {
  // While a database lives, connections are the embedded ones.
  const late::ObjectPtr database = factory.Create("ShopSuite.Database");
  const late::ObjectPtr request = LoggedOn(nullptr);
  const late::ObjectPtr connection = request->Get("adocon").ToObject();
  EXPECT_EQ(connection->TypeName(), database->Call("Open").ToObject()->TypeName());
  EXPECT_EQ(connection->Get("State").ToInt32(), 0);
  EXPECT_EQ(request->Get("adocon").ToObject(), connection) << "one, and kept";
  const PressingOn pressing;
  request->Call("Show");
  EXPECT_GE(PressingOn::messages, 1) << "it is closed, and somebody must be told";
  EXPECT_EQ(PressingOn::forms, 1);
}

TEST_F(Host, OneObjectIsShownAgainAndAgain) {
  const late::ObjectPtr database = factory.Create("ShopSuite.Database");
  const late::ObjectPtr connection = database->Call("Open").ToObject();
  const PressingOn pressing;
  const late::ObjectPtr request = LoggedOn(connection);
  request->Call("Show");
  request->Call("Show");
  EXPECT_GE(PressingOn::forms, 2);
}
