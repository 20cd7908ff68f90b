#include <gtest/gtest.h>

#include "platform/text/drawing/canvas.h"
#include "platform/text/drawing/table_picture.h"
#include "tests/platform/console/text_session.h"

namespace console {
namespace {

using text::Align;
using text::Fit;
using text::Table;

std::string Joined(const std::vector<std::string>& lines) {
  std::string all = "\n";
  for (const std::string& line : lines) all += line + '\n';
  return all;
}

/// The lines of the pictures that a script showed.
std::string PictureOf(const std::string& script) {
  TextSession session;
  std::istringstream printed(session.Play(script + "\nquit"));
  std::string picture = "\n";
  for (std::string line; std::getline(printed, line);) {
    if (line.starts_with("text: ")) picture += line.substr(6) + '\n';
  }
  return picture;
}

/// Fails with the two pictures one above the other.
void ExpectPicture(const std::string& drawn, const std::string& expected) {
  EXPECT_TRUE(drawn == expected) << "drawn:" << drawn << "expected:" << expected;
}

TEST(Drawing, AFormShowsItsControlsWhereTheyStand) {
  ExpectPicture(PictureOf("set txtName Cups & saucers\nset txtQty 12\nclick optGodown\ncheck chkUrgent\nshow"), R"(
┌─ Order "A" ────────────────────────────────────────────────────────────────────┐
│ Name:       [Cups & saucers            ]    ┌─ Kind ─────────┐                 │
│ Quantity:   [         12]   [         v]    │  ( ) Shop      │   »[x] Urgent   │
│                                             │  (o) Godown    │                 │
│                                             └────────────────┘                 │
│ ┌─ [Stock] / Lines ──────────────────────────────────────────────────────┐     │
│ │    Code │ Item          │ Stock                                        │     │
│ │    ─────┼───────────────┼──────                                        │     │
│ │    C1   │ Item number 1 │    10                                        │     │
│ │  > C2   │ Item number 2 │    20                                        │     │
│ │   !C3   │ Item number 3 │    30                                        │     │
│ │    C4   │ Item number 4 │    40                                        │     │
│ │    ... 5 more                                                          │     │
│ └────────────────────────────────────────────────────────────────────────┘     │
│  < OK >         < More >                      < Close >                        │
└─ » has the focus, ! red ───────────────────────────────────────────────────────┘
)");
}

TEST(Drawing, TheOtherPageShowsItsListAndADisabledButton) {
  ExpectPicture(PictureOf("click cmdMore\ntab tabLists 1\nrow lvwLines 2\nshow"), R"(
┌─ Order "A" ────────────────────────────────────────────────────────────────────┐
│ Name:       [                          ]    ┌─ Kind ─────────┐                 │
│ Quantity:   [           ]   [         v]    │  ( ) Shop      │    [ ] Urgent   │
│                                             │  ( ) Godown    │                 │
│                                             └────────────────┘                 │
│ ┌─ Stock / [Lines] ──────────────────────────────────────────────────────┐     │
│ │ »      Sl No. │ Item                                                   │     │
│ │        ───────┼────────────                                            │     │
│ │    [ ] 1      │ Cup                                                    │     │
│ │  > [x] 2      │ Saucer, 12"                                            │     │
│ └────────────────────────────────────────────────────────────────────────┘     │
│  < OK >        ~< More >                      < Close >                        │
└─ » has the focus, ~ disabled ──────────────────────────────────────────────────┘
)");
}

TEST(Drawing, AnOpenMessageStandsBelowItsForm) {
  const std::string picture = PictureOf("click cmdOK\nshow");
  const std::size_t message = picture.find("┌─ Shop");
  ASSERT_NE(message, std::string::npos);
  ExpectPicture("\n" + picture.substr(message), R"(
┌─ Shop ────────────────────────┐
│ Save Changes?                 │
│  < Yes > »< No >  < Cancel >  │
└───────────────────────────────┘
)");
}

TEST(Drawing, ATableKeepsTheCurrentRowInSight) {
  const auto shown = [](long current, long top) {
    const text::RowWindow window = text::WindowAround(current, top, 1, 100, 5);
    return std::to_string(window.first) + "-" + std::to_string(window.last);
  };
  EXPECT_EQ(shown(1, 1), "1-5");
  EXPECT_EQ(shown(5, 1), "1-5");
  EXPECT_EQ(shown(50, 1), "48-52");
  EXPECT_EQ(shown(100, 1), "96-100");
  EXPECT_EQ(shown(0, 40), "40-44") << "the heading is current: the scrolled place stays";
}

TEST(Drawing, ATableTooWideCutsItsWidestCellsAndLeavesOutWhatCannotFit) {
  Table table;
  table.headingMarks = "";
  table.columns = {{"No.", 5, Align::Right}, {"Description", 40, Align::Left}, {"Hidden", 0, Align::Left}};
  table.rows = {{"", {"1", "A very long description of an item", "x"}}, {"", {"20", "Short", "y"}}};
  table.below = 7;
  ExpectPicture(Joined(text::DrawTable(table, 22).Lines()), R"(
No. │ Description
────┼─────────────────
  1 │ A very long des…
 20 │ Short
... 7 more
)");
  ExpectPicture(Joined(text::DrawTable(table, 8).Lines()), R"(
No. …
───
  1 …
 20 …
... 7 more
)");
}

TEST(Drawing, TextIsFittedByCharactersNotBytes) {
  EXPECT_EQ(Fit("äöü", 5), "äöü  ");
  EXPECT_EQ(Fit("äöü", 5, Align::Right), "  äöü");
  EXPECT_EQ(Fit("äöüß", 3), "äö…");
  EXPECT_EQ(Fit("a\r\nb", 4), "a  b");
}

}  // namespace
}  // namespace console
