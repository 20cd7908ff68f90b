// The numbers of a shop's requests.

#include <string>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/records/query_rows.h"
#include "src/records/request_store.h"

namespace goods {
namespace {

// No blank before the first AND: the server recognises the number's end.
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
  return "select GRHrequestID from mosGoodsRequestHeader where grhrequestno='" + vb::DoubleApostrophes(requestNo) +
         "' and grhshopid=" + std::to_string(shopId);
}

}  // namespace

std::string RequestStore::fnGenerateRequestNo() {
  const std::string prefix = FirstValue(session_, PrefixQuery(session_.gLngInterfaceID, session_.gIntShopID)).TextOrEmpty();
  const std::string greatest = FirstValue(session_, GreatestCounterQuery(prefix, session_.gIntShopID)).TextOrEmpty();
  const std::int16_t counter = vb::CInt(vb::Val(greatest) + 1);
  return prefix + std::to_string(counter);
}

bool RequestStore::fnRequestNoExists(const std::string& requestNo) {
  const bool exists = ReadQuery(
      session_, RequestNoQuery(requestNo, session_.gIntShopID), [](ado::Recordset& rows) { return rows.RecordCount() >= 1; },
      ado::kKeyset, ado::kReadOnly);
  // The editor's box swallows it. A number that code has put there must fail here, not in the statements of a later year.
  if (vb::InStr(requestNo, "'") > 0) vb::Raise(vb::kInvalidCall, "A request number cannot contain an apostrophe.");
  return exists;
}

}  // namespace goods
