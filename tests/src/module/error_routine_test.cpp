#include "src/module/error_routine.h"

#include <gtest/gtest.h>

#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace {

/// An error component that is there and cannot report.
class BrokenLog : public late::Object {
 public:
  late::Value Invoke(std::string_view, late::Access, std::span<late::Value>) override { vb::Raise(75, "errors.mdb is full"); }
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return "ErrorDetails"; }
};

class ErrorRoutine : public testing::Test {
 protected:
  void Fail() {
    EXPECT_FALSE(goods::Trapped(shop.session, "frmRequest ", "cmdOK_Click", [] { vb::Raise(3704, "Connection lost", "ADODB"); }));
  }

  support::Shop shop;
};

TEST_F(ErrorRoutine, HandsTheErrorToTheSuitesComponentAndSaysNothingItself) {
  const auto errors = support::ErrorNotes::Install(shop.registry);
  shop.session.gStrEntryMode = "E";
  Fail();
  EXPECT_EQ(errors->lines, std::vector<std::string>{"frmRequest |cmdOK_Click|3704|E"});
  EXPECT_EQ(errors->users, std::vector<std::string>{"Nora Halvard"});
  shop.registry.Unregister("ShopCommon.clsCommonDB");
  Fail();
  EXPECT_EQ(errors->users.back(), "") << "a report without a name is better than none";
}

TEST_F(ErrorRoutine, StandardExceptionsAreTrappedAndReportedToo) {
  const auto errors = support::ErrorNotes::Install(shop.registry);
  const auto fails = [&] {
    return !goods::Trapped(shop.session, "frmRequest ", "KeepDraft", [] { throw std::out_of_range("no such place"); });
  };
  EXPECT_TRUE(fails());
  EXPECT_EQ(errors->lines, std::vector<std::string>{"frmRequest |KeepDraft|51|"});
  shop.registry.Register("ErrLog.ErrorDetails", []() -> late::ObjectPtr { throw std::bad_alloc(); });
  shop.desktop.ExpectMessage("no such place\n(frmRequest KeepDraft, 51)", controls::Answer::Ok, controls::kExclamation);
  EXPECT_TRUE(fails());
  shop.desktop.Verify();
}

TEST_F(ErrorRoutine, ShowsTheErrorOnceWhereTheComponentIsMissingOrFails) {
  const auto failsWith = [&](const std::string& title) {
    shop.desktop.ExpectMessage("Connection lost\n(frmRequest cmdOK_Click, 3704)", controls::Answer::Ok, controls::kExclamation);
    Fail();
    EXPECT_EQ(shop.desktop.messages.back().title, title);
    shop.desktop.Verify();
  };
  shop.registry.Unregister("ErrLog.ErrorDetails");
  failsWith("Shop");
  shop.registry.Register("ErrLog.ErrorDetails", [] { return std::make_shared<BrokenLog>(); });
  failsWith("Shop");
  shop.session.gStrMsgboxCaption.clear();
  failsWith("Error");
}

}  // namespace
