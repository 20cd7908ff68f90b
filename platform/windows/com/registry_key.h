#pragma once

#include <string>
#include <utility>

#include "platform/windows/windows_gate.h"

namespace windows {

/// The two halves that a 64-bit system keeps of some keys (classes and interfaces by identifier, not ProgIDs): that of this
/// program's width, and the one that programs of the other width see. On a system of one width both are the same.
enum class RegistryView { Own, Other };

inline RegistryView Opposite(RegistryView view) {
  return view == RegistryView::Own ? RegistryView::Other : RegistryView::Own;
}

/// Owns an open registry key.
class RegistryKey {
 public:
  RegistryKey() = default;
  explicit RegistryKey(HKEY key) : key_(key) {}
  RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
  RegistryKey& operator=(RegistryKey&& other) noexcept {
    std::swap(key_, other.key_);
    return *this;
  }
  ~RegistryKey() {
    if (key_) RegCloseKey(key_);
  }

  /// Opens the key for writing, making it when it is not there. The system's result is returned.
  static LSTATUS Create(HKEY root, const std::wstring& path, RegistryKey& key, RegistryView view = RegistryView::Own);
  /// The text of a value of a key; empty when there is none. The empty name is the key's default value.
  static std::wstring ReadText(HKEY root, const std::wstring& path, const std::wstring& name = {},
                               RegistryView view = RegistryView::Own);
  static bool Exists(HKEY root, const std::wstring& path, RegistryView view = RegistryView::Own);
  /// Whether the system refuses this user to write to an existing key.
  static bool IsRefused(HKEY root, const std::wstring& path);
  /// Deletes the key and everything below; that it is not there counts as success.
  static LSTATUS DeleteTree(HKEY root, const std::wstring& path, RegistryView view = RegistryView::Own);

  LSTATUS WriteText(const std::wstring& name, const std::wstring& text) const;
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace windows
