#include "base/vb/number.h"
#include "src/faces/grid_settings.h"
#include "src/register/frm_master.h"

namespace goods {
namespace {

std::string ShopCondition(std::string_view before, std::int32_t shopId) {
  return std::string(before) + std::to_string(shopId);
}

/// The shop's requests after the from-date; those of the from-date itself are left out on purpose.
std::string RegisterQuery(std::string_view table, std::int32_t shopId, vb::Date fromDate) {
  return "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks, "
         " CASE GRHcancel when 1 then 'Yes' when 0 then 'No' end ,"
         " CASE GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from " +
         std::string(table) + " where GRHshopid=" + std::to_string(shopId) + "  and grhrequestdate >'" +
         vb::FormatDate(fromDate, "yyyymmdd") + "' order by GRHrequestID";
}

bool IsAbsent(const late::Value& value) {
  return value.IsNull() || value.IsEmpty() || (value.IsText() && value.TextOrEmpty().empty());
}

}  // namespace

void frmMaster::Form_Load() {
  basGoodsRequest& session = Session();
  evaluatedRow_ = flexMaster.Row();
  searchAnswer_.Forget();
  session.gStrUserRights.clear();  // of whoever used the component before
  EnableCommands(false);           // until the rights are read: after an error on the way nothing may be done
  objCommonDB_ = CommonDb(session.services.factory, session.gAdoCon, "ShopCommon.clscommonDB");
  session.gObjFormColor = FormColor(session.services.factory);
  session.gObjFormColor.Applyformcolor(*this);
  OpenUserAuditing(session);
  ReadSettings();
  GridPopulate(RegisterQuery(mainTable_, session.gIntShopID, session.gDtFromDate), mainTable_);
  USerRights();
  ApplySelectionColor();
}

void frmMaster::Form_Unload() {
  if (!flexMaster.HasPulledColumns()) return;
  const GridOwner owner = SettingsOwner();
  GridSettings(Session().services.factory).fnSaveGridSettings(owner, flexMaster);
}

GridOwner frmMaster::SettingsOwner() const {
  return {vb::CInt(static_cast<double>(Session().gIntUserID)), Session().gIntCompanyID, Session().gLngInterfaceID};
}

void frmMaster::ReadSettings() {
  basGoodsRequest& session = Session();
  objCommonDB_.strTableName("lousers where userid=" + std::to_string(session.gIntUserID) +
                            " and ShopID=" + std::to_string(session.gIntShopID));
  session.gStrUserName = objCommonDB_.fnReturnField("username").TextOrEmpty();

  session.gDtFromDate = fnPopulateDate();

  // A setting left null counts as off.
  objCommonDB_.strTableName("aPAckageSettings");
  session.gBlnIntegerQuantity = objCommonDB_.fnReturnField("IntegerQuantity").TrueOrFalse();

  objCommonDB_.strTableName("aShops");
  session.gBlnRequestForNonShopItem =
      objCommonDB_.fnReturnField("RequestForNonShopItem", ShopCondition("ShopID=", session.gIntShopID)).TrueOrFalse();
  session.gBlnPreserveItemDetails =
      objCommonDB_.fnReturnField("PreserveItemDetails", ShopCondition("ShopId = ", session.gIntShopID)).TrueOrFalse();

  objCommonDB_.strTableName("aPackageSettings");
  const bool summary = objCommonDB_.fnReturnField("TransactionsSummary").TrueOrFalse();
  session.gStrStockView = summary ? "vwInquiryShopStockSummary" : "vwInquiryShopStock";
}

vb::Date frmMaster::fnPopulateDate() {
  vb::Date fromDate;
  Trap("fnPopulateDate", [&] {
    const std::string condition = ShopCondition(" shopid=", Session().gIntShopID);
    objCommonDB_.strTableName("LOsSettings");
    const std::int16_t backDays = objCommonDB_.fnReturnField("sNoofBackDays", condition).ToInt16();
    const vb::Date candidate{Session().gDtProcessDate.days - backDays};

    objCommonDB_.strTableName("vwshopCloseDate");
    const late::Value closed = objCommonDB_.fnReturnField("closedate", condition);
    const bool closedEarlier = !IsAbsent(closed) && !(closed.ToDate() > candidate);
    fromDate = closedEarlier ? closed.ToDate() : candidate;
  });
  return fromDate;
}

}  // namespace goods
