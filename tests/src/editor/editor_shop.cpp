#include "tests/src/editor/editor_shop.h"

#include "base/vb/text.h"

namespace editor_test {
namespace {

constexpr std::string_view kShop = R"(
create table smpUserAudit (companyid int,shopid int,userid int,interfaceid int,loggedtime datetime,savedtime datetime,recordid int,recordno varchar(50),action varchar(10),changes varchar(4000))
insert into aPackageSettings (IntegerQuantity, TransactionsSummary, alias, allowitemcodeduplication) values (0, null, 0, 0)
insert into aAlias (aliasid, Alias) values (1, 'Store'), (2, 'Warehouse')
insert into aShops (ShopID, shopname, cityid, countryid, MaxRequestItemsToHQ, DepartmentID) values (1, 'Harbour', 1, 1, 2, 1)
insert into loUsers (UserID, ShopID, UserName) values (1, 1, 'Nora'), (2, 1, 'Ines')
insert into aUsers (UserID, ShopID, UserName) values (1, 1, ' Nora '), (2, 1, 'Ines')
insert into aFinancialYear (FinancialId, CurFinancialYear) values (2, 0), (3, 1)
insert into aPrefix (Prefix, InterfaceID, FinancialId, shopid) values ('OLD/', 1503, 2, 1), ('GR/', 1503, 3, 1), ('CI/', 1201, 3, 1)
insert into aUnit (UnitId, UnitCode) values (1, 'pcs'), (2, 'kg')
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (1, 'CUP', 'P-1', 'N', 1, 1)
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (2, 'POT', null, 'N', 1, 1)
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (3, 'TEA', null, 'N', 1, 2)
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (4, 'BUN', null, 'B', 1, 1)
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (5, 'OLD', null, 'N', 0, 1)
insert into aItem (ItemId, ItemCode, part_code, itemtype, active, UnitsId) values (6, 'JAR', null, 'N', 1, 1)
insert into smpItemDescription (ItemID, ItemDescription, code) values (1, 'Cup', 'CUP'), (2, 'Tea pot', 'POT'), (3, 'Tea', 'TEA')
insert into smpItemDescription (ItemID, ItemDescription, code) values (4, 'Bun', 'BUN'), (5, 'Old cup', 'OLD'), (6, 'Jar', 'JAR')
insert into aShopItemDetail (ShopID, ItemID, ItemReorderLevel, ReorderQuantity) values (1, 1, 10, 24), (1, 2, 10, 6), (1, 3, 10, 0)
insert into aShopItemDetail (ShopID, ItemID, ItemReorderLevel, ReorderQuantity) values (1, 4, 10, 5), (1, 5, 10, 5), (1, 6, 10, 5)
insert into aShopItemDetail (ShopID, ItemID, ItemReorderLevel, ReorderQuantity) values (2, 1, 0, 0), (2, 2, 0, 0), (2, 3, 0, 0)
insert into smpShopStock (shopid, itemid, stock) values (1, 1, 4), (1, 1, 6), (1, 2, 10.5), (1, 3, -2), (1, 4, 0), (1, 5, 0), (2, 6, 0)
insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno, GRHrequestdate, GRHremarks, GRHrecaddUser, GRHNoofDetails, GRHrequesttype) values (7, 1, 'GR/7', '20240310', 'weekly', 'Ines', 2, 'p')
insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDreqcomments, GRDgoodQty) values (1, 1, 7, 2, 'blue', 2.5)
insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDreqcomments, GRDgoodQty) values (2, 1, 7, 1, null, 4)
update aShopItemDetail set RequestRaised = 1 where ItemID in (1, 2)
insert into losinvoiceheader (ihInvoiceID, ihShopID, ihCompanyId, ihInvoiceNo, ihType, ihCancelled, ihTransFinished) values (101, 1, 1, 'I-101', 'R', 0, 1), (102, 1, 1, 'I-102', 'R', 0, 1), (103, 1, 1, 'I-103', 'R', 0, 1)
insert into losinvoicedetail (idInvoiceID, idShopID, idItemID, idQuantity, idDescription) values (101, 1, 1, 4, 'school'), (101, 1, 3, 0.3, null), (102, 1, 1, 2, null), (103, 1, 6, 1, null)
insert into losExportHeader (rehExportID, rehExportNo, rehShopID, rehCompanyID, rehCancelled, rehtype) values (101, 'X-101', 1, 1, 0, 'R'), (102, 'X-102', 1, 1, 0, 'R')
insert into losExportDetail (redExportID, redShopID, redItemID, redQuantity, redDescription) values (101, 1, 2, 5, 'harbour')
insert into losInvoiceProjectRequestDetails (idrInvoiceId, idrShopId, idrCompanyId) values (103, 1, 1)
)";

}  // namespace

EditorShop::EditorShop(bool replication) : shop(support::Shop::Stock::Empty, replication) {
  shop.Run(kShop);
  shop.LogOn();
  registerForm = std::make_shared<GridForm>(desktop);
  registerForm->Load();
  view = std::make_unique<goods::RegisterView>(goods::RegisterView{
      registerForm->flexMaster,
      "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks,GRHcancel,GRHtransfinished from mosGoodsRequestHeader"
      " where GRHshopid=1 order by GRHrequestID"});
  editor = std::make_shared<goods::frmRequest>(session, *view);
}

void EditorShop::New(Work work, controls::Answer stockOutItems) {
  session.gStrEntryMode = "N";
  desktop.ExpectMessage("Do you want to add stock out items?", stockOutItems, controls::kYesNo + controls::kInformation);
  editor->txtrequestDate.SetText(vb::DateText(session.gDtProcessDate));
  editor->txtRemarks.SetText("");
  desktop.ExpectForm("frmRequest", [&](controls::Form&) { work(); });
  editor->Show();
  desktop.Verify();
}

void EditorShop::Edit(std::int32_t requestId, Work work) {
  session.gStrEntryMode = "E";
  session.gLngRequestID = requestId;
  editor->ShowOwnLinks(requestId);
  const std::string condition = " from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=" + std::to_string(requestId);
  editor->txtRequestNo.SetText(shop.Row("select GRHrequestno" + condition));
  editor->txtrequestDate.SetText(
      vb::DateText(vb::ParseDate(shop.Row("select convert(varchar(10),GRHrequestdate,111)" + condition))));
  desktop.ExpectForm("frmRequest", [&](controls::Form&) { work(); });
  editor->Show();
  desktop.Verify();
}

void EditorShop::ExpectNoSaving() {
  desktop.ExpectMessage("Save Changes?", controls::Answer::No, controls::kYesNoCancel + controls::kQuestion);
}

void EditorShop::AddLine(std::int32_t itemId, std::string_view quantity, std::string_view remarks) {
  controls::ListView& list = editor->lvwrequest;
  const std::string item = std::to_string(itemId);
  controls::ListItem& line = list.Add(std::to_string(list.Count() + 1));
  line.SetSubItem(goods::kLineItemCode, shop.Row("select ItemCode from aItem where ItemId=" + item));
  line.SetSubItem(goods::kLineItemName, shop.Row("select ItemDescription from smpItemDescription where ItemID=" + item));
  line.SetSubItem(goods::kLineQty, quantity);
  line.SetSubItem(goods::kLineItemId, item);
  line.SetSubItem(goods::kLineRemarks, remarks);
  list.SetTag("C");
}

std::vector<std::string> EditorShop::Lines() {
  std::vector<std::string> lines;
  for (int i = 1; i <= editor->lvwrequest.Count(); ++i) {
    const controls::ListItem& line = editor->lvwrequest.Item(i);
    lines.push_back(line.Text() + "|" + line.SubItem(goods::kLineItemCode) + "|" + line.SubItem(goods::kLineQty) + "|" +
                    line.SubItem(goods::kLineItemId));
  }
  return lines;
}

std::vector<std::string> EditorShop::Documents() {
  std::vector<std::string> documents;
  for (int i = 1; i <= editor->lvwCustomerReq.Count(); ++i) {
    const controls::ListItem& document = editor->lvwCustomerReq.Item(i);
    documents.push_back((document.Checked() ? "[x] " : "[ ] ") + document.SubItem(goods::kDocumentRequestNo));
  }
  return documents;
}

void EditorShop::CheckDocuments(std::initializer_list<std::string_view> numbers) {
  if (!editor->chkcutomerrequest.IsChecked()) support::Click(editor->chkcutomerrequest);
  for (const std::string_view number : numbers) CheckDocument(number);
}

void EditorShop::CheckDocument(std::string_view number, bool checked) {
  editor->sstabGoodsReq.SetTab(goods::frmRequest::kCustomerPage);
  for (int i = 1; i <= editor->lvwCustomerReq.Count(); ++i) {
    if (editor->lvwCustomerReq.Item(i).SubItem(goods::kDocumentRequestNo) != number) continue;
    support::CheckLine(editor->lvwCustomerReq, i, checked);
    editor->sstabGoodsReq.SetTab(goods::frmRequest::kItemsPage);
    return;
  }
  ADD_FAILURE() << number << " is not in the list";
}

void EditorShop::ExpectError(std::string_view description, std::string_view routine, long number) {
  desktop.ExpectMessage(std::string(description) + "\n(frmRequest " + std::string(routine) + ", " + std::to_string(number) + ")",
                        controls::Answer::Ok, controls::kExclamation);
}

std::vector<std::string> EditorShop::Everything() {
  std::vector<std::string> all;
  for (const char* query : {"select * from mosGoodsRequestHeader order by GRHshopID, GRHrequestID",
                            "select * from mosGoodsRequestDetail order by GRDshopID, GRDrequestID, GRDDetailid",
                            "select * from mosRequestInvDetail order by reqdid, reqddetailid",
                            "select ShopID, ItemID, RequestRaised from aShopItemDetail order by ShopID, ItemID",
                            "select count(*) from smpUserAudit"}) {
    for (std::string& row : shop.Rows(query)) all.push_back(std::move(row));
  }
  return all;
}

}  // namespace editor_test
