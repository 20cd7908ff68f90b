#pragma once

#include <string_view>
#include <type_traits>
#include <vector>

#include "base/controls/control.h"
#include "base/late/object.h"

/// How a control class lists its late-bound members: a static MemberList in FindMember, rows made by Property, ReadOnly and
/// Method, or spelled out as late::Member where a member has arguments. Details of the room, not for others.
namespace controls::members {

// A C++ value as a late one. Colours are unsigned, so those of the system leave 32 bits and become doubles.
inline late::Value Out(bool value) {
  return value;
}
inline late::Value Out(int value) {
  return std::int32_t{value};
}
inline late::Value Out(long value) {
  return std::int64_t{value};
}
inline late::Value Out(Color value) {
  return std::int64_t{value};
}
inline late::Value Out(const std::string& value) {
  return value;
}
template <class E>
requires std::is_enum_v<E> late::Value Out(E value) {
  return static_cast<std::int32_t>(value);
}

// A late value as the C++ type that a setter takes.
template <class A>
A In(const late::Value& value) {
  using Plain = std::remove_cvref_t<A>;
  if constexpr (std::is_same_v<Plain, bool>) {
    return value.ToBool();
  } else if constexpr (std::is_same_v<Plain, Color>) {
    return static_cast<Color>(static_cast<std::int64_t>(value.ToDouble()));  // a signed 32-bit colour keeps its bits
  } else if constexpr (std::is_enum_v<Plain>) {
    return static_cast<Plain>(value.ToInt32());
  } else {
    return value.ToInt32();
  }
}

template <class T, class Owner, class R, class OwnerPut, class A>
late::Member<T> Property(std::string_view name, R (Owner::*get)() const, void (OwnerPut::*put)(A)) {
  return {name, [get](T& self, late::Arguments&) { return Out((self.*get)()); },
          [put](T& self, late::Arguments& arguments) {
            const late::Value& value = arguments[arguments.Count() - 1];
            if constexpr (std::is_same_v<std::remove_cvref_t<A>, std::string_view> ||
                          std::is_same_v<std::remove_cvref_t<A>, std::string>) {
              (self.*put)(value.ToText());
            } else {
              (self.*put)(In<A>(value));
            }
          }};
}

template <class T, class Owner, class R>
late::Member<T> ReadOnly(std::string_view name, R (Owner::*get)() const) {
  return {name, [get](T& self, late::Arguments&) { return Out((self.*get)()); }, {}};
}

/// A property with one index.
template <class T, class Owner, class R, class I>
late::Member<T> Indexed(std::string_view name, R (Owner::*get)(I) const) {
  return {name, [get](T& self, late::Arguments& arguments) { return Out((self.*get)(In<I>(arguments[0]))); }, {}, 1, 1};
}
template <class T, class Owner, class R, class I, class OwnerPut, class J, class A>
late::Member<T> Indexed(std::string_view name, R (Owner::*get)(I) const, void (OwnerPut::*put)(J, A)) {
  late::Member<T> member = Indexed<T>(name, get);
  member.put = [put](T& self, late::Arguments& arguments) {
    if constexpr (std::is_same_v<std::remove_cvref_t<A>, std::string_view>) {
      (self.*put)(In<J>(arguments[0]), arguments[1].ToText());
    } else {
      (self.*put)(In<J>(arguments[0]), In<A>(arguments[1]));
    }
  };
  return member;
}

template <class T, class Owner>
late::Member<T> Method(std::string_view name, void (Owner::*body)()) {
  return {name,
          [body](T& self, late::Arguments&) {
            (self.*body)();
            return late::Value();
          },
          {}};
}

/// The members of class T as the entries that Control keeps (`Late` is Control::LateMember).
template <class T, class Late>
class MemberList {
 public:
  MemberList(std::initializer_list<late::Member<T>> members) {
    for (const late::Member<T>& member : members) {
      index_.Add(member.name, entries_.size());
      Late entry{member.name, {}, {}, member.minArguments, member.maxArguments};
      if (member.get) {
        entry.get = [get = member.get](Control& self, late::Arguments& arguments) {
          return get(static_cast<T&>(self), arguments);
        };
      }
      if (member.put) {
        entry.put = [put = member.put](Control& self, late::Arguments& arguments) { put(static_cast<T&>(self), arguments); };
      }
      entries_.push_back(std::move(entry));
    }
  }
  const Late* Find(std::string_view name) const {
    const std::size_t position = index_.Find(name);
    return position == late::detail::NameIndex::npos ? nullptr : &entries_[position];
  }

 private:
  std::vector<Late> entries_;
  late::detail::NameIndex index_;
};

}  // namespace controls::members
