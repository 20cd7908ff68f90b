#include "src/printing/slip_footer.h"

#include <string>

#include "base/ado/recordset.h"
#include "base/vb/date.h"
#include "base/vb/text.h"
#include "src/printing/slip_columns.h"

namespace goods {
namespace {

std::string MessagesQuery(std::int32_t shopId) {
  return "select * from ashopprintmessages where shopid = " + std::to_string(shopId) +
         " and transtype = 'POSPO' order by messageid";
}

std::string UserQuery(std::int32_t userId, std::int32_t shopId) {
  return "select Username from Lousers where userid = " + std::to_string(userId) + " and shopid = " + std::to_string(shopId);
}

std::string Aligned(const std::string& message, const std::string& alignment, std::int16_t pageWidth) {
  if (alignment == "R") return RightAligned(message, pageWidth);
  if (alignment == "M") return Centred(message, pageWidth);
  return message;
}

}  // namespace

void WriteSlipFooter(basGoodsRequest& session, SlipOutput& output, std::int16_t pageWidth) {
  output.Line("");
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.Open(MessagesQuery(session.gIntShopID), session.gAdoCon);
  for (; !rows.Eof(); rows.MoveNext()) {
    const std::string alignment = vb::UCase(vb::Trim(rows.Field("allignment").TextOrEmpty()));
    output.Line(Aligned(rows.Field("message").TextOrEmpty(), alignment, pageWidth));
  }
  rows.Close();
  output.Line("");
  rows.Open(UserQuery(session.gIntUserID, session.gIntShopID), session.gAdoCon);
  const std::string user = rows.Eof() ? std::string() : rows.Field("UserName").TextOrEmpty();
  rows.Close();
  const vb::Date now = session.services.workstation.Now();
  output.Line(user + " - " + vb::FormatDate(now, "dd/mm/yyyy") + " " + vb::FormatDate(now, "hh:nn:ss"));
}

}  // namespace goods
