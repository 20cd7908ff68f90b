#include "platform/windows/com/member_names.h"

#include <deque>
#include <mutex>
#include <unordered_map>

#include "base/vb/text.h"

namespace windows {
namespace {

constexpr DISPID kFirst = 1;

struct Names {
  std::mutex lock;
  std::deque<std::string> names;  // entries never move
  std::unordered_map<std::string, DISPID> ids;

  static Names& Of() {
    static Names names;
    return names;
  }
};

}  // namespace

DISPID MemberIdOf(std::string_view name) {
  std::string folded = vb::LCase(name);
  Names& all = Names::Of();
  const std::scoped_lock hold(all.lock);
  const auto [place, added] = all.ids.try_emplace(std::move(folded), kFirst + static_cast<DISPID>(all.names.size()));
  if (added) all.names.emplace_back(name);
  return place->second;
}

const std::string* MemberNameOf(DISPID id) {
  Names& all = Names::Of();
  const std::scoped_lock hold(all.lock);
  const auto index = static_cast<std::size_t>(id - kFirst);
  return id < kFirst || index >= all.names.size() ? nullptr : &all.names[index];
}

}  // namespace windows
