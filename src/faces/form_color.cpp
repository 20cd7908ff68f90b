#include "src/faces/form_color.h"

#include "base/vb/error.h"

namespace goods {
namespace {

late::Object& FormColor(basGoodsRequest& session) {
  if (!session.gObjFormColor) vb::Raise(vb::kObjectNotSet);
  return *session.gObjFormColor;
}

}  // namespace

void Applyformcolor(basGoodsRequest& session, controls::Form& form) {
  FormColor(session).Call("Applyformcolor", {form.shared_from_this()});
}

void Applytabcolor(basGoodsRequest& session, controls::TabControl& tabs) {
  FormColor(session).Call("Applytabcolor", {tabs.AsObject()});
}

}  // namespace goods
