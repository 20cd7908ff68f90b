#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ado/connection.h"
#include "base/ado/recordset.h"
#include "base/late/object.h"
#include "suite/helpers/frm_lookup.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's item lookup: configured member by member, shown modally. The row taken is the current record of the
/// recordset it was given (or made, where it was given none). Unless a refresh is forced, and only when PreserveData says so,
/// rows are kept from one Show to the next for the same data identifier, and an open recordset of the same query is shown as it
/// is handed over.
class LookupStandIn : public late::TableObject<LookupStandIn> {
 public:
  explicit LookupStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<LookupStandIn>& Members();
  std::string TypeName() const override { return "clsFetch"; }

 private:
  void setRecordSet(late::Arguments& arguments);
  void Show();
  /// Whether the present rows can be shown again.
  bool HasRows();
  void TakeHandedRows();
  void LoadRows();
  /// The configured fields, or else all of the query.
  std::vector<std::string> FieldNames();
  std::vector<LookupColumn> Columns();

  std::shared_ptr<Surroundings> surroundings_;
  ado::Connection connection_;
  std::string strQuery_;
  std::string strMsgboxTitle_;
  std::int32_t lngUserID_ = 0;
  std::int32_t interfaceId_ = 0;
  std::string dataIdentifier_;
  bool forcedRefresh_ = false;
  bool preserveData_ = false;
  std::string fetchType_, locationType_, interfaceCaption_;
  std::int32_t shopId_ = 0;
  std::int32_t defaultField_ = 0;
  std::vector<std::string> fieldNames_, fieldCaptions_;
  std::vector<int> fieldWidths_;
  ado::Recordset recordset_;
  bool cancelled_ = true;

  std::shared_ptr<frmLookup> window_;
  LookupRows rows_;
  std::optional<std::string> heldIdentifier_;  ///< of the rows kept
};

}  // namespace suite
