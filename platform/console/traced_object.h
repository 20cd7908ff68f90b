#pragma once

#include <string>

#include "base/late/object.h"
#include "platform/console/output.h"

namespace console {

/// Decorates a helper component's object: writes each call, then forwards it. Calls to the error component are written
/// whether or not calls are traced.
class TracedObject : public late::Object {
 public:
  TracedObject(late::ObjectPtr inner, std::string progId, Output& output)
      : inner_(std::move(inner)), progId_(std::move(progId)), output_(output) {}

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view member) const override { return inner_->Has(member); }
  std::string TypeName() const override { return inner_->TypeName(); }

 private:
  late::ObjectPtr inner_;
  std::string progId_;
  Output& output_;
};

/// Takes any member: writes its calls, remembers what is put, and answers every other question with an object like itself.
class RecordingObject : public late::Object {
 public:
  RecordingObject(std::string path, Output& output) : path_(std::move(path)), output_(output) {}

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return path_; }

 private:
  late::Value& Remembered(std::string_view member);

  std::string path_;
  Output& output_;
  std::vector<std::pair<std::string, late::Value>> remembered_;
};

/// Hands out the helper components of another factory with a trace around them; data access objects come as they are.
class TracingFactory : public late::Factory {
 public:
  TracingFactory(late::Factory& inner, Output& output) : inner_(inner), output_(output) {}

  late::ObjectPtr Create(std::string_view progId) override;

 private:
  late::Factory& inner_;
  Output& output_;
};

}  // namespace console
