#include "src/records/customer_documents.h"

namespace goods {
namespace {

std::string Number(std::int32_t value) {
  return std::to_string(value);
}

/// The ids of the documents of a kind, as " in" has them; what no id equals when there are none.
std::string Ids(const std::vector<CustomerLink>& documents, CustomerLink::Kind kind) {
  std::string ids;
  for (const CustomerLink& document : documents) {
    if (document.kind == kind) ids += (ids.empty() ? "" : ",") + Number(document.id);
  }
  return ids.empty() ? "null" : ids;
}

}  // namespace

std::string LinkedInvoicesQuery(std::int32_t requestId, std::int32_t shopId, std::int32_t companyId) {
  return "select h.ihInvoiceNo,d.reqinvdinvoiceid from losinvoiceheader h,mosrequestinvdetail d"
         " where h.ihShopID = d.reqinvdshopid And h.ihInvoiceID = d.reqinvdinvoiceid"
         " and h.ihCompanyId=d.reqcompanyid and d.reqcompanyid=" +
         Number(companyId) + " and d.reqinvdshopid=" + Number(shopId) + " and d.reqdid=" + Number(requestId);
}

std::string LinksQuery(std::int32_t requestId, std::int32_t shopId, std::int32_t companyId) {
  return "select d.reqinvdinvoiceid,d.reqReexportID,h.rehExportNo from mosRequestInvDetail d left outer join losExportHeader h"
         " on h.rehShopID=d.reqinvdshopid and h.rehExportID=d.reqReexportID and h.rehCompanyID=d.reqcompanyid"
         " where d.reqcompanyid=" +
         Number(companyId) + " and d.reqinvdshopid=" + Number(shopId) + " and d.reqdid=" + Number(requestId) +
         " order by d.reqddetailid";
}

std::string LinksOfOthersQuery(const std::vector<CustomerLink>& documents, std::int32_t ownId, std::int32_t shopId,
                               std::int32_t companyId) {
  return "select gh.GRHrequestno,gd.reqinvdinvoiceid,gd.reqReexportID from mosRequestInvDetail gd, mosgoodsrequestheader gh"
         " where gh.GRHrequestID=gd.reqdid and gh.GRHshopID=gd.reqinvdshopid and gh.GRHcancel=0 and gd.reqcompanyid=" +
         Number(companyId) + " and gd.reqinvdshopid=" + Number(shopId) + " and gd.reqdid<>" + Number(ownId) +
         " and (gd.reqinvdinvoiceid in (" + Ids(documents, CustomerLink::Kind::Invoice) + ") or gd.reqReexportID in (" +
         Ids(documents, CustomerLink::Kind::Reexport) + ")) order by gd.reqdid,gd.reqddetailid";
}

std::string DocumentsOnOfferQuery(std::int32_t shopId, std::int32_t companyId) {
  // "req.reqinvdinvoiceid is null" leaves out what a live request holds; the joined links alone would not.
  return "select a.ihInvoiceNo,null ReExportNo,a.ihInvoiceID from losinvoiceheader a left outer"
         " join losinvoiceheader b on a.ihShopID = b.ihShopID And a.ihInvoiceID = b.ihProformaID "
         " and a.ihCompanyId=b.ihCompanyId and a.ihCancelled=0 left outer join  "
         " (select gd.reqinvdshopid, gd.reqinvdinvoiceid from mosRequestInvDetail gd, "
         " mosgoodsrequestheader gh where gh.GRHrequestID=gd.reqdid and "
         " gh.GRHshopID=gd.reqinvdshopid and gh.GRHcancel=0 ) req on a.ihShopID=req.reqinvdshopid "
         " and a.ihInvoiceID=req.reqinvdinvoiceid left outer join vwInvoicedPosRequests InvReq "
         " on a.ihShopID=invReq.ihShopID and a.ihInvoiceID=invReq.RequestID where  a.ihType='R'"
         " and invreq.invoiceid is null and req.reqinvdinvoiceid is null"
         " and b.ihinvoiceid is null and a.ihTransFinished=1 And a.ihShopID = " +
         Number(shopId) + " And a.ihCompanyId = " + Number(companyId) +
         " union all "
         " select null,a.rehExportNo, a.rehExportID from losExportHeader a left outer join"
         " (select gd.reqinvdshopid, gd.reqReexportID from mosRequestInvDetail gd, "
         " mosgoodsrequestheader gh where gh.GRHrequestID=gd.reqdid and "
         " gh.GRHshopID=gd.reqinvdshopid and gh.GRHcancel=0 and gd.reqReexportID is not null ) req "
         " on a.rehShopID=req.reqinvdshopid "
         " and a.rehExportID=req.reqReexportID where a.rehCancelled=0"
         " and a.rehCompanyID=" +
         Number(companyId) +
         " and a.rehtype='R' and "
         " req.reqReexportID is null and a.rehShopID=" +
         Number(shopId);
}

std::string InvoiceLinesQuery(std::int32_t invoiceId, std::int32_t shopId) {
  return "select v.ItemID,v.itemdescription,v.code,d.idQuantity, "
         "d.idDescription, u.UnitCode "
         " from vwitemdescription v,losinvoicedetail  d, aItem i, aUnit u "
         " where d.idInvoiceID = " +
         Number(invoiceId) +
         " and v.ItemID = d.idItemID "
         " and idItemId = i.ItemId"
         " and i.UnitsId = u.UnitId"
         " and idShopID = " +
         Number(shopId);
}

std::string ReexportLinesQuery(std::int32_t reexportId, std::int32_t shopId) {
  return "select v.ItemID,v.itemdescription,v.code,d.redQuantity idQuantity, "
         "d.redDescription idDescription, u.UnitCode "
         " from vwitemdescription v,losExportDetail d, aItem i, aUnit u "
         " where d.redExportID = " +
         Number(reexportId) +
         " and v.ItemID = d.redItemID "
         " and redItemID = i.ItemId"
         " and i.UnitsId = u.UnitId"
         " and redShopID = " +
         Number(shopId);
}

std::string ProjectRequestQuery(std::int32_t invoiceId, std::int32_t shopId, std::int32_t companyId) {
  return "SELECT * FROM losInvoiceProjectRequestDetails WHERE idrInvoiceId = " + Number(invoiceId) +
         " AND idrShopId = " + Number(shopId) + " AND idrCompanyId = " + Number(companyId);
}

}  // namespace goods
