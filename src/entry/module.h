#pragma once

#include <memory>

#include "src/module/session.h"

namespace goods {

class frmMaster;

/// What lives as long as the component is loaded: the session, and the register's one instance, made on first use and reused.
class Module {
 public:
  explicit Module(Services services) : session_(services) {}

  basGoodsRequest& Session() { return session_; }
  frmMaster& Register();

  /// The one showing of the register, from the moment its session values are set. Error 400 while there is one already.
  class Showing {
   public:
    explicit Showing(Module& module);
    ~Showing() { module_.isShowing_ = false; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

   private:
    Module& module_;
  };

 private:
  basGoodsRequest session_;
  std::shared_ptr<frmMaster> register_;
  bool isShowing_ = false;
};

}  // namespace goods
