#include "base/late/object.h"

#include <algorithm>
#include <array>

#include "base/vb/error.h"
#include "base/vb/letter_case.h"
#include "base/vb/text.h"

namespace late {
namespace {

/// The arguments of one call; the usual few need no allocation.
class CallArguments {
 public:
  void Add(const Value& value) {
    if (count_ < few_.size()) {
      few_[count_] = value;
    } else {
      if (count_ == few_.size()) many_.assign(few_.begin(), few_.end());
      many_.push_back(value);
    }
    ++count_;
  }
  std::span<Value> All() { return count_ <= few_.size() ? std::span<Value>(few_).first(count_) : std::span<Value>(many_); }

 private:
  std::array<Value, 3> few_;
  std::vector<Value> many_;
  std::size_t count_ = 0;
};

std::size_t HashNoCase(std::string_view name) {
  std::uint32_t hash = 2166136261u;
  for (std::size_t offset = 0; offset < name.size();) {
    const char byte = name[offset];
    const bool ascii = static_cast<unsigned char>(byte) < 0x80;
    const char32_t folded =
        ascii ? static_cast<unsigned char>(vb::LowerAscii(byte)) : vb::FoldCharacter(vb::NextCharacter(name, offset));
    if (ascii) ++offset;
    hash = (hash ^ folded) * 16777619u;
  }
  return hash;
}

std::string Named(std::string_view type, std::string_view member) {
  return std::string(type).append(".").append(member.empty() ? "(default)" : member);
}

}  // namespace

MemberError::MemberError(long number, std::string_view type, std::string_view member)
    : RunTimeError(number, std::string(vb::ErrorText(number)) + ": '" + Named(type, member) + "'"),
      type_(type),
      member_(member) {}

bool MemberError::IsAbout(const Object& object, std::string_view member) const {
  return vb::EqualNoCase(member_, member) && type_ == object.TypeName();
}

Value Object::Get(std::string_view member, std::initializer_list<Value> arguments) {
  CallArguments all;
  for (const Value& argument : arguments) all.Add(argument);
  return Invoke(member, Access::Get, all.All());
}

Value Object::Call(std::string_view member, std::initializer_list<Value> arguments) {
  CallArguments all;
  for (const Value& argument : arguments) all.Add(argument);
  return Invoke(member, Access::Call, all.All());
}

void Object::Put(std::string_view member, Value value) {
  Invoke(member, Access::Put, std::span<Value>(&value, 1));
}

void Object::Put(std::string_view member, std::initializer_list<Value> indexes, const Value& value) {
  CallArguments all;
  for (const Value& index : indexes) all.Add(index);
  all.Add(value);
  Invoke(member, Access::Put, all.All());
}

void Object::PutRef(std::string_view member, ObjectPtr value) {
  Value wrapped(std::move(value));
  Invoke(member, Access::PutRef, std::span<Value>(&wrapped, 1));
}

bool Arguments::Has(std::size_t index) const {
  return index < values_.size() && !values_[index].IsMissing();
}

const Value& Arguments::operator[](std::size_t index) const {
  if (!Has(index)) vb::Raise(vb::kArgumentNotOptional);
  return values_[index].Deref();
}

Value Arguments::Or(std::size_t index, Value otherwise) const {
  return Has(index) ? values_[index].Deref() : std::move(otherwise);
}

void Arguments::Write(std::size_t index, Value value) {
  // A value that itself came by reference is copied: its referent may end with the call.
  if (index < values_.size() && values_[index].IsByRef()) values_[index].Deref() = Value(value.Deref());
}

namespace detail {

void NameIndex::Add(std::string_view name, std::size_t position) {
  const std::size_t hash = HashNoCase(name);
  const auto place = std::ranges::upper_bound(entries_, hash, {}, &Entry::hash);
  entries_.insert(place, Entry{hash, std::string(name), position});
}

std::size_t NameIndex::Find(std::string_view name) const {
  const std::size_t hash = HashNoCase(name);
  for (auto entry = std::ranges::lower_bound(entries_, hash, {}, &Entry::hash); entry != entries_.end() && entry->hash == hash;
       ++entry) {
    if (vb::EqualNoCase(entry->name, name)) return entry->position;
  }
  return npos;
}

void RaiseUnknownMember(std::string_view type, std::string_view member) {
  throw MemberError(vb::kMemberNotFound, type, member);
}

Value GetThrough(ObjectPtr held, Arguments& index) {
  return index.Has(0) ? held->Invoke("", Access::Get, index.All()) : Value(std::move(held));
}

void PutThrough(const ObjectPtr& held, Arguments& indexAndValue) {
  const std::span<Value> all = indexAndValue.All();
  if (all.size() < 2) vb::Raise(vb::kMemberNotFound);
  held->Invoke("", Access::Get, all.first(all.size() - 1)).ToObject()->Put("", all.back().Deref());
}

void CheckArgumentCount(std::string_view type, std::string_view member, std::size_t given, int minArguments, int maxArguments) {
  if (given < static_cast<std::size_t>(minArguments)) throw MemberError(vb::kArgumentNotOptional, type, member);
  if (given > static_cast<std::size_t>(maxArguments)) throw MemberError(vb::kWrongArgumentCount, type, member);
}

}  // namespace detail

void ClassRegistry::Register(std::string progId, Maker maker) {
  Unregister(progId);
  makers_.emplace_back(std::move(progId), std::move(maker));
}

void ClassRegistry::Unregister(std::string_view progId) {
  std::erase_if(makers_, [&](const auto& entry) { return vb::EqualNoCase(entry.first, progId); });
}

ObjectPtr ClassRegistry::Create(std::string_view progId) {
  for (const auto& [name, maker] : makers_) {
    if (!vb::EqualNoCase(name, progId)) continue;
    if (ObjectPtr object = maker()) return object;
    break;
  }
  vb::Raise(vb::kCannotCreateObject, std::string(vb::ErrorText(vb::kCannotCreateObject)), std::string(progId));
}

}  // namespace late
