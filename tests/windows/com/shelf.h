#pragma once

#include "base/late/object.h"
#include "base/vb/error.h"

/// A late-bound class of our own, as the forms and helpers are: properties, methods by reference, a default member, a collection.
class Shelf : public late::TableObject<Shelf> {
 public:
  static const late::MemberTable<Shelf>& Members() {
    using late::Arguments;
    using late::Value;
    static const late::MemberTable<Shelf> table{
        {"", [](Shelf& self, Arguments&) { return self.kept; }, nullptr},
        {"Kept", [](Shelf& self, Arguments&) { return self.kept; },
         [](Shelf& self, Arguments& arguments) { self.kept = arguments[0]; }},
        {"Count", [](Shelf&, Arguments&) { return Value(std::int32_t{3}); }, nullptr},
        {"Item",
         [](Shelf&, Arguments& arguments) {
           const auto index = arguments[0].ToInt32();
           if (index < 1 || index > 3) vb::Raise(vb::kSubscriptOutOfRange);
           return Value(std::string(1, static_cast<char>('a' + index - 1)));
         },
         nullptr, 1, 1},
        {"Describe",
         [](Shelf&, Arguments& arguments) {
           std::string text = std::to_string(arguments.Count());
           for (std::size_t i = 0; i < arguments.Count(); ++i) text += arguments.Has(i) ? " " + arguments[i].TextOrEmpty() : " -";
           return Value(text);
         },
         nullptr, 0, 6},
        {"Change",
         [](Shelf& self, Arguments& arguments) {
           arguments.Write(0, self.kept);
           return Value();
         },
         nullptr, 1, 1},
        {"Fail", [](Shelf&, Arguments& arguments) -> Value { vb::Raise(arguments[0].ToInt32(), "Shelf is full", "Shelves"); },
         nullptr, 1, 1},
        {"FailDeeper",
         [](Shelf&, Arguments&) -> Value {
           std::make_shared<Shelf>()->Call("Nowhere");
           return {};
         },
         nullptr},
    };
    return table;
  }
  std::string TypeName() const override { return "Shelf"; }

  late::Value kept;
};
