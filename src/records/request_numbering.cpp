#include "src/records/request_numbering.h"

#include <string>

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace goods {
namespace {

// No blank stands before the first AND: the server reads the number's end by itself.
std::string PrefixQuery(std::int32_t interfaceId, std::int32_t shopId) {
  return "SELECT Prefix FROM aPrefix WHERE InterfaceID = " + std::to_string(interfaceId) +
         "AND FinancialId = (Select FinancialId from aFinancialYear where CurFinancialYear = 1)"
         " and shopid=" +
         std::to_string(shopId);
}

std::string GreatestCounterQuery(const std::string& prefix, std::int32_t shopId) {
  const std::string length = std::to_string(vb::Len(prefix));
  return "Select isnull(max(convert(int,right(GRHrequestNo,len(GRHrequestNo)-" + length +
         "))),0) from mosGoodsRequestHeader where GRHshopid = " + std::to_string(shopId) + " and len(GRHrequestNo)>len('" +
         prefix + "') and  isnumeric(isnull(right(GRHrequestNo,len(GRHrequestNo)-" + length +
         "),0)) =1 and substring(GRHrequestNo,1,len('" + prefix + "'))='" + prefix + "'";
}

std::string RequestNoQuery(const std::string& requestNo, std::int32_t shopId) {
  return "select GRHrequestID from mosGoodsRequestHeader where grhrequestno='" + requestNo +
         "' and grhshopid=" + std::to_string(shopId);
}

/// The first field of the query's first row as text; `otherwise` when there is no row.
std::string FirstText(basGoodsRequest& session, const std::string& query, std::string otherwise) {
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.Open(query, session.gAdoCon, ado::kForwardOnly, ado::kReadOnly);
  std::string text = rows.Eof() ? std::move(otherwise) : rows.Field(0).TextOrEmpty();
  rows.Close();
  return text;
}

}  // namespace

void fnGenerateRequestNo(basGoodsRequest& session, controls::TextBox& txtRequestNo) {
  const std::string prefix = FirstText(session, PrefixQuery(session.gLngInterfaceID, session.gIntShopID), "");
  const std::string greatest = FirstText(session, GreatestCounterQuery(prefix, session.gIntShopID), "0");
  const std::int16_t counter = vb::CInt(vb::Val(greatest) + 1);
  txtRequestNo.SetText(prefix + std::to_string(counter));
}

bool fnRequestNoExists(basGoodsRequest& session, const controls::TextBox& txtRequestNo) {
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.Open(RequestNoQuery(txtRequestNo.Text(), session.gIntShopID), session.gAdoCon, ado::kKeyset, ado::kReadOnly);
  const bool exists = rows.RecordCount() >= 1;
  rows.Close();
  return exists;
}

}  // namespace goods
