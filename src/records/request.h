#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/late/value.h"

namespace goods {

/// One line of a request. Its place in the request is its number.
struct RequestLine {
  std::string itemCode;
  std::string itemName;
  std::string quantity;  ///< as it is shown; see Quantity()
  std::int32_t itemId = 0;
  std::string remarks;
  std::string unit;
  std::string partCode;

  /// The quantity in base units; 0 where the text begins with no number.
  double Quantity() const;
  bool operator==(const RequestLine&) const = default;
};

/// The customer document that a request is raised for.
struct CustomerLink {
  enum class Kind { Invoice, Reexport };
  Kind kind = Kind::Invoice;
  std::int32_t id = 0;  ///< the invoice's, or the re-export's
  std::string number;
  std::size_t position = 0;  ///< in the list that it was checked in, from 1
  bool operator==(const CustomerLink&) const = default;
};

/// A customer document that another request, not cancelled, is linked to.
struct TakenDocument {
  std::string number;
  std::string requestNo;
};

/// Why a stored request can be changed no more.
inline constexpr std::string_view kIssueNoteGenerated = "Issue Note Generated,Cannot Modify";
inline constexpr std::string_view kConfirmedFinished = "Transaction is confirmed as finished,Cannot modify";
inline constexpr std::string_view kAlreadyDeleted = "This record is already Deleted ";

/// What the stored header says about whether, and over whose work, a request may be written.
struct StoredHeader {
  std::string number;
  bool issued = false;
  bool finished = false;
  bool cancelled = false;
  late::Value updateTime;  ///< Null for one that was never changed
  std::string changedBy;   ///< the name of the user who changed it last; empty when nobody did
};

/// A time of change as text that can be compared and kept, "2024-03-14 08:00:00.123"; a time that a helper gives as text as it
/// is, empty for none.
std::string UpdateTimeText(const late::Value& updateTime);

enum class RequestType { ToGodown, PurchaseOrder };

/// A goods request as it was entered: texts are what was typed, with their blanks.
struct Request {
  std::int32_t id = 0;  ///< provisional until a new request is saved, as the number is
  std::string number;
  std::string date;
  RequestType type = RequestType::ToGodown;
  std::string remarks;
  bool finished = false;  ///< confirmed: it can be changed no more
  std::vector<RequestLine> lines;
  std::vector<CustomerLink> links;
  std::string updateTime;  ///< UpdateTimeText of the stored request, as it was last seen

  /// Whether a line asks for more than 0.
  bool HasLineWithQuantity() const;
  bool operator==(const Request&) const = default;
};

}  // namespace goods
