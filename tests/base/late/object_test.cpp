#include "base/late/object.h"

#include <gtest/gtest.h>

#include "base/vb/error.h"

namespace {

using late::Arguments;
using late::Value;

/// A scale at the counter, written as native late-bound classes are.
class Scale : public late::TableObject<Scale> {
 public:
  static const late::MemberTable<Scale>& Members() {
    static const late::MemberTable<Scale> members = {
        {"Weight", [](Scale& self, Arguments&) { return Value(self.weight); },
         [](Scale& self, Arguments& arguments) { self.weight = arguments[0].ToDouble(); }},
        {"", [](Scale&, Arguments&) { return Value("scale"); }, {}},
        {"Label", [](Scale& self, Arguments& arguments) { return self.labels[static_cast<std::size_t>(arguments[0].ToInt32())]; },
         [](Scale& self, Arguments& arguments) { self.labels[static_cast<std::size_t>(arguments[0].ToInt32())] = arguments[1]; },
         1, 1},
        {"Weigh",
         [](Scale&, Arguments& arguments) {
           arguments.Write(1, Value("weighed " + arguments[0].ToText()));
           return Value(arguments.Or(2, "kg"));
         },
         {},
         1,
         3},
        {"Sum",
         [](Scale&, Arguments& arguments) {
           double sum = 0;
           for (std::size_t i = 0; i < arguments.Count(); ++i) sum = sum * 10 + arguments[i].ToDouble();
           return Value(sum);
         },
         {},
         0,
         9},
    };
    return members;
  }
  std::string TypeName() const override { return "Scale"; }

  double weight = 0;
  std::array<Value, 2> labels;
};

long ErrorOf(const std::function<void()>& action, std::string* description = nullptr) {
  try {
    action();
  } catch (const vb::RunTimeError& error) {
    if (description) *description = error.Description();
    return error.Number();
  }
  return 0;
}

TEST(LateObject, FindsMembersWithoutRegardToCase) {
  Scale scale;
  scale.Put("WEIGHT", 2.5);
  EXPECT_EQ(scale.Get("weight").ToDouble(), 2.5);
  EXPECT_EQ(scale.Call("Weight").ToDouble(), 2.5) << "a call that uses its result may stand for a get";
  EXPECT_EQ(scale.Get("").ToText(), "scale");
  EXPECT_TRUE(scale.Has("wEiGh"));
  EXPECT_FALSE(scale.Has("Weighs"));
}

TEST(LateObject, PassesArgumentsInOrderAndBack) {
  Scale scale;
  Value result("untouched");
  EXPECT_EQ(scale.Call("Weigh", {"apples", Value::ByRef(result), "lb"}).ToText(), "lb");
  EXPECT_EQ(result.ToText(), "weighed apples");
  EXPECT_EQ(scale.Call("Weigh", {"pears", "a plain value", late::Missing{}}).ToText(), "kg");
  EXPECT_EQ(scale.Call("Weigh", {"nuts"}).ToText(), "kg");
  EXPECT_EQ(scale.Call("Sum", {1, 2, 3, 4, 5, 6}).ToDouble(), 123456) << "many arguments keep their order";

  scale.Put("Label", {1}, "fruit");
  EXPECT_EQ(scale.Get("Label", {1}).ToText(), "fruit");
  EXPECT_TRUE(scale.Get("Label", {0}).IsEmpty());
}

TEST(LateObject, NamesWhatIsMissing) {
  Scale scale;
  std::string text;
  EXPECT_EQ(ErrorOf([&] { scale.Call("Tare"); }, &text), vb::kMemberNotFound);
  EXPECT_EQ(text, "Object doesn't support this property or method: 'Scale.Tare'");
  EXPECT_EQ(ErrorOf([&] { scale.Put("Weigh", 1); }), vb::kMemberNotFound);
  EXPECT_EQ(ErrorOf([&] { scale.Call("Weigh"); }), vb::kArgumentNotOptional);
  EXPECT_EQ(ErrorOf([&] { scale.Call("Weigh", {late::Missing{}}); }), vb::kArgumentNotOptional);
  EXPECT_EQ(ErrorOf([&] { scale.Call("Weigh", {1, 2, 3, 4}); }), vb::kWrongArgumentCount);
  EXPECT_EQ(ErrorOf([&] { scale.Get("Weight", {1}); }), vb::kWrongArgumentCount);
  EXPECT_EQ(ErrorOf([&] { scale.Put("Label", 1); }), vb::kArgumentNotOptional) << "the value put is no index";
}

TEST(NameIndex, FindsEachOfManyNames) {
  late::detail::NameIndex index;
  for (std::size_t i = 0; i < 500; ++i) index.Add("Field" + std::to_string(i), i);
  for (std::size_t i = 0; i < 500; ++i) EXPECT_EQ(index.Find("FIELD" + std::to_string(i)), i);
  EXPECT_EQ(index.Find("Field500"), late::detail::NameIndex::npos);
  index.Add("Größe", 500);
  EXPECT_EQ(index.Find("GRÖßE"), 500u);
}

TEST(ClassRegistry, MakesWhatIsRegistered) {
  late::ClassRegistry registry;
  registry.Register("Shop.Scale", [] { return std::make_shared<Scale>(); });
  registry.Register("Shop.Broken", [] { return late::ObjectPtr(); });
  EXPECT_EQ(registry.Create("shop.SCALE")->TypeName(), "Scale");
  EXPECT_NE(registry.Create("Shop.Scale"), registry.Create("Shop.Scale"));

  std::string text;
  EXPECT_EQ(ErrorOf([&] { registry.Create("Shop.Printer"); }, &text), vb::kCannotCreateObject);
  EXPECT_EQ(text, "ActiveX component can't create object");
  EXPECT_EQ(ErrorOf([&] { registry.Create("Shop.Broken"); }), vb::kCannotCreateObject);
  registry.Unregister("SHOP.scale");
  EXPECT_EQ(ErrorOf([&] { registry.Create("Shop.Scale"); }), vb::kCannotCreateObject);
}

}  // namespace
