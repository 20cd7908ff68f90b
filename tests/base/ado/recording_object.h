#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/late/object.h"

/// Writes down every access as one line and answers from a list: the other end of a face, without a database.
class RecordingObject : public late::Object {
 public:
  using Answer = std::function<late::Value(std::span<late::Value>)>;

  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override {
    std::string line = access == late::Access::Put ? "put " : access == late::Access::Get ? "get " : "call ";
    line += member;
    for (const late::Value& argument : arguments) line += " [" + Shown(argument) + "]";
    log.push_back(line);
    const auto answer = answers.find(std::string(member));
    return answer == answers.end() ? late::Value() : answer->second(arguments);
  }
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return "Recording"; }

  std::vector<std::string> log;
  std::map<std::string, Answer> answers;

 private:
  static std::string Shown(const late::Value& value) {
    if (value.IsObject()) return "object";
    if (value.IsMissing()) return "";
    const auto* array = value.If<late::ArrayPtr>();
    if (!array) return value.ToText();
    std::string text;
    for (const late::Value& item : (*array)->items) text += (text.empty() ? "" : ",") + item.ToText();
    return text;
  }
};
