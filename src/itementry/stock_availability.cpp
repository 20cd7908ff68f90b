#include "src/itementry/stock_availability.h"

#include <cmath>
#include <string>

#include "src/faces/common_db.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string GodownStockQuery(std::string_view itemId) {
  return "select isnull(sum(gsstock),0) as TotalStock from vwInquiryGodownStock where gsitemid=" + std::string(itemId);
}

std::string UnconfirmedDespatchesQuery(std::string_view itemId) {
  return "select isnull(sum(ddItemGoodQty),0)as DespatchQtyNotCof from meiDespatchToShopDetail"
         " left outer join meiDespatchToShopHeader on ddDespatchID=dhDespatchID"
         " where dhCancelled=0 and dhTransFinished=0 and ddItemID=" +
         std::string(itemId);
}

std::string IssuedGoodsQuery(std::string_view itemId, std::int16_t departmentId, bool transferFinished) {
  return "select isnull(sum(INDQty),0) as IssuedGood From ahqIssueNotedetail"
         " left outer join ahqIssueNoteheader hqinh on INDIssuenoteID=INHIssuenoteID and INHCancelled=0"
         " left outer join aHqIssueNoteMain hqinm on  INDIssuenoteID = hqinm.INMIssuenoteID and INMCancel=0"
         " where INHUsed=0 and (hqinm.departmentid is null or hqinm.departmentid=" +
         std::to_string(departmentId) + ") and INDItemID=" + std::string(itemId) +
         " and INHTransFinished = " + (transferFinished ? "1" : "0");
}

/// Sums of thousandths leave binary rests: what is as good as nothing must not be shown as -5.55E-17.
double WithoutBinaryRest(double quantity) {
  constexpr double kFinestPart = 1e8;  // of the unit; more decimals are shown nowhere
  return std::round(quantity * kFinestPart) / kFinestPart;
}

}  // namespace

double GetAvailableQuantity(basGoodsRequest& session, CommonDb& db, std::string_view itemId) {
  db.strTableName("ashops");
  const late::Value department = db.fnReturnField("DepartmentID", "ShopID=" + std::to_string(session.gIntShopID));
  // A shop of no department: only the issue notes that have none either are meant for it. No department has the id 0.
  const std::int16_t departmentId = department.IsNull() ? std::int16_t{0} : department.ToInt16();

  const double inGodowns = ExecuteForValue(session, GodownStockQuery(itemId)).ToDouble();
  const double despatched = ExecuteForValue(session, UnconfirmedDespatchesQuery(itemId)).ToDouble();
  const double issuedFinished = ExecuteForValue(session, IssuedGoodsQuery(itemId, departmentId, true)).ToDouble();
  const double issuedOpen = ExecuteForValue(session, IssuedGoodsQuery(itemId, departmentId, false)).ToDouble();
  return WithoutBinaryRest(inGodowns - (issuedOpen + issuedFinished + despatched));
}

}  // namespace goods
