#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "src/records/request.h"

namespace goods {

// What is asked about customer invoices and re-exports. Every statement is about one shop and company.

/// The invoices that a request is linked to.
std::string LinkedInvoicesQuery(std::int32_t requestId, std::int32_t shopId, std::int32_t companyId);
/// Fields of LinkedInvoicesQuery.
enum LinkedInvoiceField : std::size_t { kLinkedInvoiceNo, kLinkedInvoiceId };

/// All links of a request, with the numbers of the re-exports among them.
std::string LinksQuery(std::int32_t requestId, std::int32_t shopId, std::int32_t companyId);
/// Fields of LinksQuery; of the first two one is null.
enum LinkField : std::size_t { kLinkInvoiceId, kLinkReexportId, kLinkReexportNo };

/// The links of requests other than `ownId`, and not cancelled, to any of these documents, of which there is at least one.
std::string LinksOfOthersQuery(const std::vector<CustomerLink>& documents, std::int32_t ownId, std::int32_t shopId,
                               std::int32_t companyId);
/// Fields of LinksOfOthersQuery; of the two ids one is null.
enum TakenField : std::size_t { kTakenBy, kTakenInvoiceId, kTakenReexportId };

/// Finished invoices and re-exports of type R that no live request holds.
std::string DocumentsOnOfferQuery(std::int32_t shopId, std::int32_t companyId);
/// Fields of DocumentsOnOfferQuery; of the two numbers one is null.
enum OfferField : std::size_t { kOfferInvoiceNo, kOfferReexportNo, kOfferId };

std::string InvoiceLinesQuery(std::int32_t invoiceId, std::int32_t shopId);
std::string ReexportLinesQuery(std::int32_t reexportId, std::int32_t shopId);
/// Fields of InvoiceLinesQuery and ReexportLinesQuery.
enum DocumentLineField : std::size_t { kDocLineItemId, kDocLineName, kDocLineCode, kDocLineQty, kDocLineRemarks, kDocLineUnit };

/// Finds a row when the invoice is a project request.
std::string ProjectRequestQuery(std::int32_t invoiceId, std::int32_t shopId, std::int32_t companyId);

}  // namespace goods
