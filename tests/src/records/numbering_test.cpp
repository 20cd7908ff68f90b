#include "src/records/request_store.h"
#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

class Numbering : public EditorShop {
 protected:
  void SetUp() override { shop.Run("delete from mosGoodsRequestHeader"); }
  void Take(const std::string& number, int shopId = 1) {
    shop.Run("insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno) values (" + std::to_string(++lastId_) +
             ", " + std::to_string(shopId) + ", '" + number + "')");
  }
  std::string Next() { return store_.fnGenerateRequestNo(); }
  goods::CommonDb db_{session.services.factory, session.gAdoCon};
  goods::RequestStore store_{session, db_};

 private:
  int lastId_ = 100;
};

TEST_F(Numbering, CountsOnFromTheGreatestNumberBehindThePrefix) {
  EXPECT_EQ("GR/1", Next());
  Take("GR/7");
  Take("gr/12");
  Take("GRX9");
  Take("GR/");
  Take("GR/new");
  Take("OLD/900");
  Take("GR/500", 2);
  EXPECT_EQ("GR/13", Next());
}

TEST_F(Numbering, ANewFinancialYearWithANewPrefixStartsAgain) {
  Take("GR/41");
  shop.Run("insert into aPrefix (Prefix, InterfaceID, FinancialId, shopid) values ('G25-', 1503, 4, 1)");
  EXPECT_EQ("GR/42", Next());
  shop.Run("update aFinancialYear set CurFinancialYear = 0");
  shop.Run("insert into aFinancialYear (FinancialId, CurFinancialYear) values (4, 1)");
  EXPECT_EQ("G25-1", Next());
}

TEST_F(Numbering, AShopWithoutAPrefixCountsPlainly) {
  shop.Run("delete from aPrefix where shopid = 1");
  Take("GR/41");
  EXPECT_EQ("1", Next());
  Take("7");
  EXPECT_EQ("8", Next());
}

TEST_F(Numbering, TheCounterEndsAtSixteenBits) {
  Take("GR/32766");
  EXPECT_EQ("GR/32767", Next());
  Take("GR/32767");
  const std::vector<std::string> before = Everything();
  New([&] {
    AddLine(1, "1.000");
    ExpectError("Overflow", "cmdOK_Click", vb::kOverflow);
    support::Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_EQ(before, Everything());
    EXPECT_EQ("", editor->txtRequestNo.Text());
    desktop.ExpectMessage("Save Changes?", controls::Answer::No);
  });
}

TEST_F(Numbering, ANumberExistsInItsOwnShopOnly) {
  Take("GR/5");
  Take("GR/6", 2);
  EXPECT_TRUE(store_.fnRequestNoExists("GR/5"));
  EXPECT_FALSE(store_.fnRequestNoExists("GR/6"));
}

}  // namespace
}  // namespace editor_test
