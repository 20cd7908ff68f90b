#include "suite/helpers/register_helpers.h"

#include "suite/helpers/cls_common_db.h"
#include "suite/helpers/cls_common_gen.h"
#include "suite/helpers/cls_fetch.h"
#include "suite/helpers/cls_formcolor.h"
#include "suite/helpers/cls_master_grid_setting.h"
#include "suite/helpers/cls_user_auditing.h"
#include "suite/helpers/error_details.h"

namespace suite {

void RegisterHelpers(late::ClassRegistry& registry, const std::shared_ptr<Surroundings>& surroundings) {
  registry.Register("ShopCommon.clsCommonDB", [surroundings] { return std::make_shared<clsCommonDB>(surroundings); });
  registry.Register("ShopCommon.clsCommonGen", [] { return std::make_shared<clsCommonGen>(); });
  registry.Register("Lookup.clsFetch", [surroundings] { return std::make_shared<clsFetch>(surroundings); });
  registry.Register("Theme.clsFormcolor", [surroundings] { return std::make_shared<clsFormcolor>(surroundings); });
  registry.Register("Audit.clsUserAuditing", [surroundings] { return std::make_shared<clsUserAuditing>(surroundings); });
  registry.Register("GridPrefs.clsMasterGridSetting",
                    [surroundings] { return std::make_shared<clsMasterGridSetting>(surroundings); });
  registry.Register("ErrLog.ErrorDetails", [surroundings] { return std::make_shared<ErrorDetails>(surroundings); });
}

}  // namespace suite
