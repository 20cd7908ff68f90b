#pragma once

#include <functional>
#include <string>

#include "platform/windows/com/com_factory.h"
#include "platform/windows/windows_gate.h"
#include "tests/windows/hosts/hands.h"

namespace hosts {

inline constexpr const char* kRegister = "Goods Request to HQ";
inline constexpr const char* kEditor = "Goods Request";

/// Reports what does not hold; the program then ends with an error.
void Expect(bool holds, const std::string& what);
bool AnyFailed();

/// A host with its main window, a shop in memory, and a splash window in front that the register will belong to.
struct Host {
  explicit Host(int show = SW_SHOW);
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  late::ObjectPtr Request(const char* title = "Shop");
  /// The number of the error that Show ended with, 0 for none. The host must be its own again.
  long Show(const late::ObjectPtr& request);
  long Show() { return Show(Request()); }
  std::string Answer(const std::string& query);
  /// Runs `sentWork` in the main window's procedure, by a message that is posted or that another thread sends.
  void PostWork() const;
  void SendWorkFromAnotherThread() const;

  std::function<void()> sentWork;
  HWND main;
  HWND splash = nullptr;
  windows::ComFactory factory;
  late::ObjectPtr database = factory.Create("ShopSuite.Database");
  late::ObjectPtr connection = database->Call("Open").ToObject();
  Hands hands;
};

/// The widest visible window of that class inside the form; null for none.
HWND ChildOfKind(HWND form, const wchar_t* kind);

Hands::Deed PressKeys(const wchar_t* kind, WPARAM key, int times);

/// Brings the editor up with a live request and something typed into its remarks.
void EditRemarks(Host& host);

}  // namespace hosts
