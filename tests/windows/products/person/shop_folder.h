#pragma once

#include <string>

namespace person {

/// A temporary folder of its own, for a shop's database and what goes with it; gone with the object.
class ShopFolder {
 public:
  ShopFolder();
  ShopFolder(const ShopFolder&) = delete;
  ShopFolder& operator=(const ShopFolder&) = delete;
  ~ShopFolder();

  /// The full path of a file or folder in it, whether it is there or not.
  std::string File(const std::string& name) const;
  std::string Database() const { return File("shop.db"); }

 private:
  std::wstring path_;
};

}  // namespace person
