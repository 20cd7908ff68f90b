#include "src/printing/slip_header.h"

#include <string>
#include <string_view>
#include <vector>

#include "base/ado/recordset.h"
#include "base/vb/error.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "src/printing/slip_settings.h"

namespace goods {
namespace {

std::string RequestQuery(std::int32_t shopId, std::int32_t requestId) {
  return std::string("select GRHrequestNO,GRHrequestDate,GRHremarks") + " from mosgoodsrequestheader where" +
         " GRHshopid=" + std::to_string(shopId) + " and GRHrequestid=" + std::to_string(requestId);
}

std::string ShopQuery(std::int32_t shopId) {
  return std::string("select shopname, address, CityName, CountryName, telephoneno, faxno") +
         " from ashops s, acountrymaster co, acity  ci where s.countryid = co.countryid and " +
         " ci.cityid = s.cityid and s.shopid=" + std::to_string(shopId);
}

struct Request {
  std::string number, date, remarks;
};

struct Shop {
  std::string name, address, city, country, telephone, fax;
};

std::string OneLine(const std::string& text) {
  return vb::Replace(vb::Replace(vb::Replace(text, "\r\n", " "), "\r", " "), "\n", " ");
}

/// The texts of the query's first row; `fields` empty ones when there is none.
std::vector<std::string> FirstRow(basGoodsRequest& session, const std::string& query, std::size_t fields) {
  ado::Recordset row = ado::Recordset::Create(session.services.factory);
  row.Open(query, session.gAdoCon);
  std::vector<std::string> texts(fields);
  if (!row.Eof()) {
    for (std::size_t field = 0; field < fields; ++field) texts[field] = row.Field(static_cast<int>(field)).TextOrEmpty();
  }
  row.Close();
  return texts;
}

Request ReadRequest(basGoodsRequest& session, std::int32_t requestId) {
  const std::vector<std::string> row = FirstRow(session, RequestQuery(session.gIntShopID, requestId), 3);
  return {row[0], row[1], OneLine(row[2])};
}

Shop ReadShop(basGoodsRequest& session) {
  const std::vector<std::string> row = FirstRow(session, ShopQuery(session.gIntShopID), 6);
  return {row[0], OneLine(row[1]), row[2], row[3], row[4], row[5]};
}

/// Writes the header's lines and counts them.
class HeaderWriter {
 public:
  HeaderWriter(SlipOutput& output, const SlipHeaderSettings& settings, std::int16_t pageWidth)
      : output_(output), settings_(settings), pageWidth_(pageWidth) {}

  void Raw(std::string_view text) {
    output_.Line(text);
    ++lines_;
  }
  void Line(std::string_view text) { Raw(vb::Space(settings_.headerleftmargin) + std::string(text)); }
  /// `right` ends at the page width; a long left text pushes it on, one blank apart.
  void Line(std::string_view left, std::string_view right) {
    const std::string text = vb::Space(settings_.headerleftmargin) + std::string(left);
    const long room = pageWidth_ - static_cast<long>(vb::Len(text)) - static_cast<long>(vb::Len(right));
    Raw(text + vb::Space(room > 1 ? room : 1) + std::string(right));
  }
  /// The title overwrites the middle of a line of blanks; what does not fit is cut.
  void Title(std::string_view title) {
    const long length = static_cast<long>(vb::Len(title));
    const long position = vb::CLng(static_cast<double>(pageWidth_ - length) / 2);
    if (position < 1) vb::Raise(vb::kInvalidCall);
    const std::string line = vb::Space(position - 1) + std::string(title);
    Raw(vb::Left(line + vb::Space(pageWidth_ - static_cast<long>(vb::Len(line))), pageWidth_));
  }
  long Lines() const { return lines_; }

 private:
  SlipOutput& output_;
  const SlipHeaderSettings& settings_;
  std::int16_t pageWidth_;
  long lines_ = 0;
};

void WriteCompany(basGoodsRequest& session, const SlipHeaderSettings& settings, HeaderWriter& writer) {
  CommonDb db(session.services.factory, session.gAdoCon);
  db.strTableName("acompanymaster");
  const std::string condition = "companyid=" + std::to_string(session.gIntCompanyID);
  writer.Line(db.fnReturnField("name", condition).TextOrEmpty());
  const std::string_view addresses[] = {"Address1", "Address2", "Address3"};
  for (std::size_t i = 0; i < std::size(addresses); ++i) {
    if (settings.printadd[i]) writer.Line(db.fnReturnField(addresses[i], condition).TextOrEmpty());
  }
}

void WriteShopAndRequest(const Shop& shop, const Request& request, HeaderWriter& writer) {
  writer.Line(shop.name);
  writer.Line(shop.address, "Request No     : " + request.number);
  writer.Line(shop.city + " , " + shop.country, "Request Date   : " + request.date);
  writer.Line("Tel:" + shop.telephone + "  Fax: " + shop.fax);
}

}  // namespace

void WriteSlipHeader(basGoodsRequest& session, SettingsFile& settingsFile, SlipOutput& output, std::int16_t pageWidth,
                     std::int32_t requestId) {
  const SlipHeaderSettings settings = SlipHeaderSettings::Read(settingsFile);
  const Request request = ReadRequest(session, requestId);
  const Shop shop = ReadShop(session);
  HeaderWriter writer(output, settings, pageWidth);
  for (int line = 0; line < settings.linetoskipfirst; ++line) writer.Raw("");
  if (settings.printtransnameabove == 1) writer.Title("Goods Request To Hq");
  if (settings.PrintCompanyName) WriteCompany(session, settings, writer);
  WriteShopAndRequest(shop, request, writer);
  if (settings.linesafteraddress) writer.Raw("");  // sets the address block off from the remarks
  writer.Line("Remarks      :  " + request.remarks);
  if (settings.printtransnameabove == 0) {
    writer.Title("Goods Request To HQ");
    writer.Raw("");
  }
  if (settings.linesafterheader) {
    for (long number = writer.Lines() + 2; number <= settings.totalheadcount; ++number) output.Line("");
  }
}

}  // namespace goods
