#include "base/late/value.h"

#include <functional>
#include <gtest/gtest.h>

#include "base/late/object.h"
#include "base/vb/error.h"

namespace {

using late::Value;

/// A text box as a value: what counts is its default member.
class Box : public late::Object {
 public:
  explicit Box(Value text) : text_(std::move(text)) {}
  Value Invoke(std::string_view, late::Access, std::span<Value>) override { return text_; }
  bool Has(std::string_view member) const override { return member.empty(); }
  std::string TypeName() const override { return "Box"; }

 private:
  Value text_;
};

/// Its default member is another box, of that box another, without end.
class EndlessBox : public late::Object {
 public:
  Value Invoke(std::string_view, late::Access, std::span<Value>) override { return std::make_shared<EndlessBox>(); }
  bool Has(std::string_view member) const override { return member.empty(); }
  std::string TypeName() const override { return "EndlessBox"; }
};

class Bare : public late::Object {
 public:
  Value Invoke(std::string_view, late::Access, std::span<Value>) override { return {}; }
  bool Has(std::string_view) const override { return false; }
  std::string TypeName() const override { return "Bare"; }
};

long ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const vb::RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Value, ConvertsByTheRulesOfTheRuntime) {
  const struct {
    Value value;
    const char* text;
    std::int32_t whole;
    double number;
    bool flag;
  } cases[] = {
      {Value(), "", 0, 0, false},
      {true, "True", -1, -1, true},
      {false, "False", 0, 0, false},
      {std::int16_t{-7}, "-7", -7, -7, true},
      {70000, "70000", 70000, 70000, true},
      {2.5, "2.5", 2, 2.5, true},
      {late::Currency{-25000}, "-2.5", -2, -2.5, true},
      {vb::Decimal::Parse("3.500"), "3.5", 4, 3.5, true},
      {vb::Decimal::Parse("-3.501"), "-3.501", -4, -3.501, true},
      {vb::Decimal::Parse("0.500"), "0.5", 0, 0.5, true},
      {vb::MakeDate(2024, 1, 1, 12), "01/01/2024 12:00:00", 45292, 45292.5, true},
      {"12.5", "12.5", 12, 12.5, true},
      {" 0 ", " 0 ", 0, 0, false},
      {std::make_shared<Box>("17"), "17", 17, 17, true},
      {std::make_shared<Box>(std::make_shared<Box>(std::make_shared<Box>("17"))), "17", 17, 17, true},
  };
  for (const auto& test : cases) {
    Value target = test.value;
    for (const Value& value : {test.value, Value::ByRef(target)}) {
      EXPECT_EQ(value.ToText(), test.text);
      EXPECT_EQ(value.ToInt32(), test.whole) << test.text;
      EXPECT_EQ(value.ToDouble(), test.number) << test.text;
      EXPECT_EQ(value.ToBool(), test.flag) << test.text;
    }
  }
}

TEST(Value, RefusesWhatHasNoConversion) {
  const auto errors = [](const Value& value) {
    return std::vector<long>{ErrorOf([&] { value.ToText(); }), ErrorOf([&] { value.ToInt16(); }),
                             ErrorOf([&] { value.ToDouble(); }), ErrorOf([&] { value.ToBool(); }),
                             ErrorOf([&] { value.ToDate(); })};
  };
  EXPECT_EQ(errors(late::Null{}), std::vector<long>(5, vb::kInvalidUseOfNull));
  EXPECT_EQ(errors(late::Missing{}), std::vector<long>(5, vb::kTypeMismatch));
  EXPECT_EQ(errors(late::Array::List({1})), std::vector<long>(5, vb::kTypeMismatch));
  EXPECT_EQ(errors(late::ObjectPtr()), std::vector<long>(5, vb::kObjectNotSet));
  EXPECT_EQ(errors(std::make_shared<Bare>()), std::vector<long>(5, vb::kTypeMismatch));
  EXPECT_EQ(errors(std::make_shared<EndlessBox>()), std::vector<long>(5, 458));
  EXPECT_FALSE(Value(std::make_shared<EndlessBox>()).TrueOrFalse());
  EXPECT_EQ(errors("soon"), (std::vector<long>{0, vb::kTypeMismatch, vb::kTypeMismatch, vb::kTypeMismatch, vb::kTypeMismatch}));
  EXPECT_EQ(ErrorOf([] { Value(40000).ToInt16(); }), vb::kOverflow);
  EXPECT_EQ(ErrorOf([] { Value(vb::Decimal::Parse("99999999999")).ToInt32(); }), vb::kOverflow);
  EXPECT_EQ(ErrorOf([] { Value(3e6).ToDate(); }), vb::kOverflow);
}

TEST(Value, ReadsFlagsAndDatesFromText) {
  EXPECT_TRUE(Value("True").ToBool());
  EXPECT_FALSE(Value("FALSE").ToBool());
  EXPECT_TRUE(Value("-1").ToBool());
  EXPECT_EQ(Value("05/02/2024").ToDate(), vb::MakeDate(2024, 2, 5));
  EXPECT_EQ(Value(45292).ToDate(), vb::MakeDate(2024, 1, 1));
}

TEST(Value, ShowsNothingForNullOnTheScreen) {
  EXPECT_EQ(Value(late::Null{}).TextOrEmpty(), "");
  EXPECT_EQ(Value(late::Missing{}).TextOrEmpty(), "");
  EXPECT_EQ(Value(2.5).TextOrEmpty(), "2.5");
  EXPECT_FALSE(Value(late::Null{}).TrueOrFalse());
  EXPECT_FALSE(Value("soon").TrueOrFalse());
  EXPECT_TRUE(Value("true").TrueOrFalse());
}

TEST(Value, GivesObjectsOnly) {
  const auto box = std::make_shared<Box>("x");
  EXPECT_EQ(Value(box).ToObject(), box);
  EXPECT_EQ(ErrorOf([] { Value(late::ObjectPtr()).ToObject(); }), vb::kObjectNotSet);
  EXPECT_EQ(ErrorOf([] { Value("x").ToObject(); }), vb::kTypeMismatch);
  EXPECT_EQ(ErrorOf([] { Value("x").ToArray(); }), vb::kTypeMismatch);
}

TEST(Value, ReachesTheCallersVariableThroughReferences) {
  Value variable(1);
  Value reference = Value::ByRef(variable);
  Value second = Value::ByRef(reference);
  second.Deref() = Value("changed");
  EXPECT_EQ(variable.ToText(), "changed");
  EXPECT_TRUE(second.IsText());
  EXPECT_FALSE(variable.IsByRef());
}

TEST(Value, KeepsNumbersBeyond32BitsAsDoubles) {
  EXPECT_TRUE(Value(std::int64_t{2147483647}).Is<std::int32_t>());
  EXPECT_EQ(Value(std::int64_t{2147483648}).ToText(), "2147483648");
  EXPECT_TRUE(Value(std::int64_t{2147483648}).Is<double>());
}

TEST(Array, RunsThroughTheFirstIndexFastest) {
  const auto table = late::Array::Table(2, 3);
  table->At(1, 2) = Value("last");
  EXPECT_EQ(table->items.back().ToText(), "last");
  EXPECT_EQ(table->dimensions, 2);
}

}  // namespace
