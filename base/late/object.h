#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/late/value.h"
#include "base/vb/error.h"

namespace late {

class Object;

/// A member that is not there or cannot be used that way (438), called with too many (450) or too few arguments (449). Who passes
/// the call on can tell whether it is about that very call or about one deeper down.
class MemberError : public vb::RunTimeError {
 public:
  MemberError(long number, std::string_view type, std::string_view member);
  bool IsAbout(const Object& object, std::string_view member) const;

 private:
  std::string type_;
  std::string member_;
};

enum class Access { Get, Put, PutRef, Call };

/// An object reached by member name only. Names are compared without regard to case; the empty name is the default member.
/// Unknown members raise error 438, a wrong number of arguments 450, a left-out required one 449.
class Object : public std::enable_shared_from_this<Object> {
 public:
  virtual ~Object() = default;

  /// Get and Call may stand for each other (a call that uses its result); the value put is the last argument.
  virtual Value Invoke(std::string_view member, Access access, std::span<Value> arguments) = 0;
  /// Whether such a member exists, whatever its kind.
  virtual bool Has(std::string_view member) const = 0;
  /// The class's name, as TypeName gives it ("Connection", "TextBox").
  virtual std::string TypeName() const = 0;

  // Conveniences for callers. Arguments made with Value::ByRef are written back.
  Value Get(std::string_view member, std::initializer_list<Value> arguments = {});
  void Put(std::string_view member, Value value);
  void Put(std::string_view member, std::initializer_list<Value> indexes, const Value& value);
  void PutRef(std::string_view member, ObjectPtr value);
  Value Call(std::string_view member, std::initializer_list<Value> arguments = {});
};

/// The arguments of one call, as the callee sees them: references resolved, missing ones distinguished.
class Arguments {
 public:
  explicit Arguments(std::span<Value> values) : values_(values) {}

  std::size_t Count() const { return values_.size(); }
  bool Has(std::size_t index) const;
  /// Error 449 when the argument was left out.
  const Value& operator[](std::size_t index) const;
  /// The argument, or `otherwise` when it was left out.
  Value Or(std::size_t index, Value otherwise) const;
  /// Writes back through a by-reference argument; does nothing for a plain value or one left out.
  void Write(std::size_t index, Value value);
  std::span<Value> All() const { return values_; }

 private:
  std::span<Value> values_;
};

/// One member of a native late-bound class.
template <class T>
struct Member {
  std::string_view name;
  std::function<Value(T&, Arguments&)> get;  ///< property read, or a method's body
  std::function<void(T&, Arguments&)> put;   ///< property write: the last argument is the value
  int minArguments = 0;                      ///< arguments that must be there (the value put not counted)
  int maxArguments = 0;                      ///< arguments that may be there
};

/// The members of a native late-bound class, looked up by name without regard to case. A class declares one static table;
/// a derived class names its base's table as second place to look.
template <class T>
class MemberTable;

namespace detail {
/// Index into a sorted name list, or npos.
class NameIndex {
 public:
  void Add(std::string_view name, std::size_t position);
  static constexpr std::size_t npos = static_cast<std::size_t>(-1);
  std::size_t Find(std::string_view name) const;

 private:
  struct Entry {
    std::size_t hash;
    std::string name;
    std::size_t position;
  };
  std::vector<Entry> entries_;  // sorted by hash
};
[[noreturn]] void RaiseUnknownMember(std::string_view type, std::string_view member);
Value GetThrough(ObjectPtr held, Arguments& index);
void PutThrough(const ObjectPtr& held, Arguments& indexAndValue);
void CheckArgumentCount(std::string_view type, std::string_view member, std::size_t given, int minArguments, int maxArguments);
}  // namespace detail

template <class T>
class MemberTable {
 public:
  MemberTable(std::initializer_list<Member<T>> members) : members_(members) {
    for (std::size_t i = 0; i < members_.size(); ++i) index_.Add(members_[i].name, i);
  }
  const Member<T>* Find(std::string_view name) const {
    const std::size_t position = index_.Find(name);
    return position == detail::NameIndex::npos ? nullptr : &members_[position];
  }
  const std::vector<Member<T>>& All() const { return members_; }

  Value Invoke(T& self, std::string_view type, const Member<T>& member, Access access, std::span<Value> values) const {
    Arguments arguments(values);
    const bool put = access == Access::Put || access == Access::PutRef;
    if (put ? !member.put : !member.get) detail::RaiseUnknownMember(type, member.name);
    detail::CheckArgumentCount(type, member.name, values.size() - (put && !values.empty() ? 1 : 0), member.minArguments,
                               member.maxArguments);
    if (!put) return member.get(self, arguments);
    member.put(self, arguments);
    return {};
  }

 private:
  std::vector<Member<T>> members_;
  detail::NameIndex index_;
};

/// A property that holds a collection. With an index it is the collection's item, as late-bound callers write it:
/// list.ListItems(1), and list.ListItems(1) = "text" for the item's default member.
template <class T>
Member<T> Collection(std::string_view name, std::function<ObjectPtr(T&)> held) {
  return {name, [held](T& self, Arguments& arguments) { return detail::GetThrough(held(self), arguments); },
          [held](T& self, Arguments& arguments) { detail::PutThrough(held(self), arguments); }, 0, 1};
}

/// A class written in C++ with its members in a table `static const MemberTable<T>& T::Members()`.
template <class T>
class TableObject : public Object {
 public:
  Value Invoke(std::string_view member, Access access, std::span<Value> arguments) override {
    const auto& table = T::Members();
    if (const auto* found = table.Find(member))
      return table.Invoke(static_cast<T&>(*this), TypeName(), *found, access, arguments);
    detail::RaiseUnknownMember(TypeName(), member);
  }
  bool Has(std::string_view member) const override { return T::Members().Find(member) != nullptr; }
};

/// Creates objects by ProgID (without regard to case). Error 429 when it is not registered or cannot be made.
class Factory {
 public:
  virtual ~Factory() = default;
  virtual ObjectPtr Create(std::string_view progId) = 0;
};

/// A factory whose classes are registered by hand: the console's, the tests', the stand-ins' own.
class ClassRegistry : public Factory {
 public:
  using Maker = std::function<ObjectPtr()>;
  void Register(std::string progId, Maker maker);
  void Unregister(std::string_view progId);
  ObjectPtr Create(std::string_view progId) override;

 private:
  std::vector<std::pair<std::string, Maker>> makers_;
};

}  // namespace late
