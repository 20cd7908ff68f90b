#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "src/entry/cls_goods_request.h"
#include "src/register/frm_master.h"
#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

/// A day at the register: the host logs somebody on and opens it, and that person works in it until it is closed by its title
/// bar.
class RegisterDay : public testing::Test {
 protected:
  struct Person {
    std::int32_t user = 1;
    std::int32_t shop = 1;
    std::int32_t company = 1;
  };

  void Open(const std::function<void()>& work) { Open(Person(), work); }
  void Open(Person who, const std::function<void()>& work) {
    auto host = std::make_shared<goods::clsGoodsRequest>(shop.module);
    host->adocon(connection);
    host->strMsgboxCaption = "Shop";
    host->intCompanyID = who.company;
    host->intUserID = who.user;
    host->intShopID = who.shop;
    host->dtProcessDate = processDate;
    shop.desktop.ExpectForm("frmMaster", [&](controls::Form&) {
      if (work) work();
    });
    host->Show();
    shop.desktop.Verify();
  }

  goods::frmMaster& Register() { return shop.module.Register(); }
  controls::FlexGrid& Grid() { return Register().flexMaster; }

  /// The listed requests from the top, "13 14 15".
  std::string Listed() {
    std::string ids;
    for (long row = 1; row < Grid().Rows(); ++row) ids += (row > 1 ? " " : "") + Grid().TextMatrix(row, 0);
    return ids;
  }
  std::string RowText(long row) {
    std::string text;
    for (long column = 0; column < Grid().Cols(); ++column) text += (column > 0 ? "|" : "") + Grid().TextMatrix(row, column);
    return text;
  }
  long RowOf(int requestId) {
    for (long row = 1; row < Grid().Rows(); ++row) {
      if (Grid().TextMatrix(row, 0) == std::to_string(requestId)) return row;
    }
    ADD_FAILURE() << "request " << requestId << " is not listed";
    return 1;
  }
  void GoTo(int requestId) { support::GoToRow(Grid(), RowOf(requestId)); }
  std::string CurrentId() { return Grid().TextMatrix(Grid().Row(), 0); }
  /// The enabled commands by their letters, "NEDP".
  std::string Enabled() {
    goods::frmMaster& form = Register();
    return std::string(form.cmdnew.Enabled() ? "N" : "") + (form.CmdEdit.Enabled() ? "E" : "") +
           (form.CmdDelete.Enabled() ? "D" : "") + (form.Cmdprev.Enabled() ? "P" : "");
  }

  support::Shop shop;
  std::shared_ptr<support::ErrorNotes> errors = support::ErrorNotes::Install(shop.registry);
  late::ObjectPtr connection = shop.session.gAdoCon.Object();
  vb::Date processDate = shop.session.gDtProcessDate;
};
