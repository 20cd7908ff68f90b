#pragma once

#include <cstdint>
#include <string>

#include "src/entry/module.h"

namespace goods {

/// The component's one public class: takes the host's connection and session values, and opens the register.
class clsGoodsRequest : public late::TableObject<clsGoodsRequest> {
 public:
  /// `module` outlives the object; several objects share it.
  explicit clsGoodsRequest(Module& module) : module_(module) {}

  /// The host's connection; a fresh, unopened one when the host has set none.
  const late::ObjectPtr& adocon();
  void adocon(late::ObjectPtr connection) { connection_ = std::move(connection); }

  std::string strMsgboxCaption;
  std::int32_t intCompanyID = 0;
  std::int32_t intUserID = 0;
  std::int32_t intShopID = 0;
  vb::Date dtProcessDate;

  /// Hands the session values over, the last caller's win, and opens the register modally; returns when it closes. Checks
  /// nothing: what is wrong with the connection shows in the register. Error 400 while the register is open already; its session
  /// then stays as it is.
  void Show();

  static const late::MemberTable<clsGoodsRequest>& Members();
  std::string TypeName() const override { return "clsGoodsRequest"; }

 private:
  Module& module_;
  late::ObjectPtr connection_;
};

}  // namespace goods
