#include "src/entry/cls_goods_request.h"

#include <gtest/gtest.h>

#include "src/register/frm_master.h"
#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace {

/// A host that knows the component by its member names alone.
class Host : public testing::Test {
 protected:
  support::Shop shop;
  std::shared_ptr<support::ErrorNotes> errors = support::ErrorNotes::Install(shop.registry);
  late::ObjectPtr connection = shop.session.gAdoCon.Object();
  late::ObjectPtr request = std::make_shared<goods::clsGoodsRequest>(shop.module);
};

TEST_F(Host, ItsValuesBecomeTheSession) {
  request->PutRef("adocon", connection);
  request->Put("STRMSGBOXCAPTION", "Harbour Street");
  request->Put("intCompanyID", std::int16_t{1});
  request->Put("intUserID", 2.0);
  request->Put("intShopID", "1");
  request->Put("dtProcessDate", vb::MakeDate(2024, 3, 14));
  shop.desktop.ExpectForm("frmMaster", [&](controls::Form&) {
    EXPECT_EQ(connection, shop.session.gAdoCon.Object());
    EXPECT_EQ("Harbour Street", shop.session.gStrMsgboxCaption);
    EXPECT_EQ(1, shop.session.gIntCompanyID);
    EXPECT_EQ(2, shop.session.gIntUserID);
    EXPECT_EQ(1, shop.session.gIntShopID);
    EXPECT_EQ(1503, shop.session.gLngInterfaceID);
    EXPECT_EQ("14/03/2024", vb::DateText(shop.session.gDtProcessDate));
    EXPECT_EQ("Ines Caldeira", shop.session.Global("gstrusername").ToText());
  });
  request->Call("Show");
  EXPECT_EQ(connection, request->Get("adocon").ToObject());
  EXPECT_EQ(2, request->Get("intUserID").ToInt32());
  EXPECT_EQ(1, request->Get("adocon").ToObject()->Get("State").ToInt32());  // the host's connection stays open
}

TEST_F(Host, TheLastCallersValuesWinAndTheRegisterIsReused) {
  const auto show = [&](const late::ObjectPtr& host, std::int32_t shopId) {
    host->PutRef("adocon", connection);
    host->Put("intShopID", shopId);
    host->Put("dtProcessDate", vb::MakeDate(2024, 3, 15));
    shop.desktop.ExpectForm("frmMaster", [&](controls::Form& form) {
      EXPECT_EQ(&form, &shop.module.Register());
      EXPECT_EQ(shopId, shop.session.gIntShopID);
    });
    host->Call("Show");
    shop.desktop.Verify();
  };
  const late::ObjectPtr other = std::make_shared<goods::clsGoodsRequest>(shop.module);
  show(request, 1);
  show(other, 2);
  show(request, 1);
}

TEST_F(Host, WithoutAConnectionTheRegisterOpensEmptyAndSaysSoOnce) {
  shop.desktop.ExpectForm("frmMaster", [&](controls::Form&) {
    EXPECT_EQ(2, shop.module.Register().flexMaster.Rows());
    EXPECT_FALSE(shop.module.Register().CmdEdit.Enabled());
  });
  request->Call("Show");
  ASSERT_EQ(1u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("frmMaster |Form_Load|")) << errors->lines[0];
  const late::ObjectPtr made = request->Get("adocon").ToObject();
  EXPECT_EQ(0, made->Get("State").ToInt32());
  EXPECT_EQ(made, shop.session.gAdoCon.Object());
}

TEST_F(Host, WithoutAnyHelperTheRegisterOpensSaysWhyAndOffersNothing) {
  for (const char* helper : {"ShopCommon.clsCommonDB", "ShopCommon.clsCommonGen", "Lookup.clsFetch", "Theme.clsFormcolor",
                             "Audit.clsUserAuditing", "GridPrefs.clsMasterGridSetting", "ErrLog.ErrorDetails"}) {
    shop.registry.Unregister(helper);
  }
  request->PutRef("adocon", connection);
  request->Put("strMsgboxCaption", "Harbour Street");
  shop.desktop.ExpectMessage("ActiveX component can't create object\n(frmMaster Form_Load, 429)", controls::Answer::Ok,
                             controls::kExclamation);
  shop.desktop.ExpectForm("frmMaster", [&](controls::Form&) {
    EXPECT_EQ("Harbour Street", shop.desktop.messages.back().title);
    const goods::frmMaster& form = shop.module.Register();
    EXPECT_FALSE(form.cmdnew.Enabled() || form.CmdEdit.Enabled() || form.CmdDelete.Enabled() || form.Cmdprev.Enabled());
    EXPECT_TRUE(form.CmdClose.Enabled());
  });
  request->Call("Show");
}

TEST_F(Host, TakesAnyObjectAsConnectionAndNothingBringsBackAFreshOne) {
  request->Put("adocon", late::Value(connection));
  EXPECT_EQ(connection, request->Get("adocon").ToObject());
  request->PutRef("adocon", nullptr);
  EXPECT_NE(connection, request->Get("adocon").ToObject());
  try {
    request->Put("adocon", "Provider=SQLOLEDB");
    FAIL() << "a text was taken for a connection";
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(vb::kTypeMismatch, error.Number());
  }
}

TEST_F(Host, CannotOpenTheRegisterTwiceAtOnce) {
  request->PutRef("adocon", connection);
  request->Put("intShopID", std::int32_t{1});
  request->Put("strMsgboxCaption", "Harbour Street");
  const late::ObjectPtr other = std::make_shared<goods::clsGoodsRequest>(shop.module);
  other->Put("intShopID", std::int32_t{2});
  shop.desktop.ExpectForm("frmMaster", [&](controls::Form&) {
    for (const late::ObjectPtr& host : {request, other}) {
      try {
        host->Call("Show");
        ADD_FAILURE() << "the register was opened twice";
      } catch (const vb::RunTimeError& error) {
        EXPECT_EQ(400, error.Number());
      }
    }
    EXPECT_EQ(1, shop.session.gIntShopID) << "the register goes on for the shop that it lists";
    EXPECT_EQ("Harbour Street", shop.session.gStrMsgboxCaption);
    EXPECT_EQ(connection, shop.session.gAdoCon.Object());
  });
  request->Call("Show");
  shop.desktop.ExpectForm("frmMaster");
  other->Call("Show");
  EXPECT_EQ(2, shop.session.gIntShopID);
}

}  // namespace
