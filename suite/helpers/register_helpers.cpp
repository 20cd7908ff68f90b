#include "suite/helpers/register_helpers.h"

#include "suite/helpers/common_db_stand_in.h"
#include "suite/helpers/common_gen_stand_in.h"
#include "suite/helpers/error_details_stand_in.h"
#include "suite/helpers/form_color_stand_in.h"
#include "suite/helpers/grid_setting_stand_in.h"
#include "suite/helpers/lookup_stand_in.h"
#include "suite/helpers/user_auditing_stand_in.h"

namespace suite {

void RegisterHelpers(late::ClassRegistry& registry, const std::shared_ptr<Surroundings>& surroundings) {
  registry.Register("ShopCommon.clsCommonDB", [surroundings] { return std::make_shared<CommonDbStandIn>(surroundings); });
  registry.Register("ShopCommon.clsCommonGen", [] { return std::make_shared<CommonGenStandIn>(); });
  registry.Register("Lookup.clsFetch", [surroundings] { return std::make_shared<LookupStandIn>(surroundings); });
  registry.Register("Theme.clsFormcolor", [surroundings] { return std::make_shared<FormColorStandIn>(surroundings); });
  registry.Register("Audit.clsUserAuditing", [surroundings] { return std::make_shared<UserAuditingStandIn>(surroundings); });
  registry.Register("GridPrefs.clsMasterGridSetting",
                    [surroundings] { return std::make_shared<GridSettingStandIn>(surroundings); });
  registry.Register("ErrLog.ErrorDetails", [surroundings] { return std::make_shared<ErrorDetailsStandIn>(surroundings); });
}

}  // namespace suite
