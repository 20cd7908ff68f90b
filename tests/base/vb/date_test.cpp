#include "base/vb/date.h"

#include <gtest/gtest.h>

#include "base/vb/error.h"

namespace {

TEST(Dates, CountDaysFromTheZeroDate) {
  EXPECT_EQ(vb::MakeDate(1899, 12, 30).days, 0);
  EXPECT_EQ(vb::MakeDate(1900, 1, 1).days, 2);
  EXPECT_EQ(vb::MakeDate(2024, 2, 29).days, 45351);
  EXPECT_EQ(vb::MakeDate(100, 1, 1).days, -657434);
  EXPECT_EQ(vb::MakeDate(9999, 12, 31).days, 2958465);
  EXPECT_EQ(vb::MakeDate(2024, 1, 1, 18).days, 45292.75);
  EXPECT_EQ(vb::MakeDate(1899, 12, 29, 6).days, -1.25) << "before the zero date the time still counts forward";
}

TEST(Dates, CarryPartsThatAreBeyondTheirRange) {
  EXPECT_EQ(vb::MakeDate(2024, 3, 0), vb::MakeDate(2024, 2, 29));
  EXPECT_EQ(vb::MakeDate(2023, 13, 1), vb::MakeDate(2024, 1, 1));
  EXPECT_EQ(vb::MakeDate(2024, 0, 31), vb::MakeDate(2023, 12, 31));
  EXPECT_EQ(vb::MakeDate(2024, 1, 1, 0, 0, -1), vb::MakeDate(2023, 12, 31, 23, 59, 59));
  EXPECT_THROW(vb::MakeDate(10000, 1, 1), vb::RunTimeError);
  EXPECT_THROW(vb::MakeDate(99, 12, 31), vb::RunTimeError);
}

TEST(Dates, GiveBackTheirParts) {
  // Around leap days, centuries and the zero date, with times on both sides of it.
  for (const int year : {100, 400, 1600, 1899, 1900, 2000, 2024, 2100, 9999}) {
    for (const auto& [month, day] : {std::pair{1, 1}, {2, 28}, {3, 1}, {12, 30}, {12, 31}}) {
      const vb::DateParts parts = vb::PartsOf(vb::MakeDate(year, month, day, 23, 59, 58));
      EXPECT_EQ(std::tie(parts.year, parts.month, parts.day), std::tie(year, month, day));
      EXPECT_EQ(std::tuple(parts.hour, parts.minute, parts.second), std::tuple(23, 59, 58));
    }
  }
  EXPECT_EQ(vb::DateText(vb::Date{45291.9999999}), "01/01/2024") << "rounded to the second, into the next day";
  EXPECT_EQ(vb::DateText(vb::Date{-1.9999999}), "30/12/1899");
  EXPECT_THROW(vb::PartsOf(vb::Date{1e300}), vb::RunTimeError);
}

TEST(Dates, ReadTheirTextInItsThreeOrders) {
  const std::pair<const char*, vb::Date> cases[] = {
      {"05/02/2024", vb::MakeDate(2024, 2, 5)},
      {"5/2/2024", vb::MakeDate(2024, 2, 5)},
      {" 2024/2/5 ", vb::MakeDate(2024, 2, 5)},
      {"2024-02-05", vb::MakeDate(2024, 2, 5)},
      {"20240205", vb::MakeDate(2024, 2, 5)},
      {"29/02/2024 9:05", vb::MakeDate(2024, 2, 29, 9, 5)},
      {"2024-02-05 23:59:59", vb::MakeDate(2024, 2, 5, 23, 59, 59)},
      {"01/01/0100", vb::MakeDate(100, 1, 1)},
  };
  for (const auto& [text, date] : cases) {
    EXPECT_EQ(vb::ParseDate(text), date) << text;
    EXPECT_EQ(vb::ParseDate(vb::DateText(date)), date) << "its own text reads back";
  }
}

TEST(Dates, NeverTurnIntoAnotherDateSilently) {
  for (const char* text : {"",
                           "  ",
                           "31/02/2024",
                           "29/02/2023",
                           "13/13/2024",
                           "00/01/2024",
                           "02/30/2024",
                           "5/2/24",
                           "2024/02-05",
                           "2024",
                           "2024020",
                           "20241301",
                           "05/02/2024x",
                           "05/02/2024 24:00",
                           "05/02/2024 10:60",
                           "05/02/2024 10",
                           "05/02/202410:00",
                           "01/01/0099",
                           "45000",
                           "tomorrow",
                           "5-2-2024",
                           "12:30"}) {
    EXPECT_FALSE(vb::TryParseDate(text)) << text;
  }
  try {
    vb::ParseDate("31/02/2024");
    FAIL() << "no error";
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), vb::kTypeMismatch);
  }
}

TEST(Dates, FollowAPicture) {
  const vb::Date date = vb::MakeDate(2024, 3, 7, 8, 5, 9);
  const std::pair<const char*, const char*> cases[] = {
      {"dd/mm/yyyy", "07/03/2024"},
      {"d/m/yy", "7/3/24"},
      {"yyyy/mm/dd", "2024/03/07"},
      {"yyyymmdd", "20240307"},
      {"YYYY-MM-DD HH:NN:SS", "2024-03-07 08:05:09"},
      {"hh:mm", "08:05"},
      {"h:n:s", "8:5:9"},
      {"dd/mm/yyyy hh:mm:ss", "07/03/2024 08:05:09"},
      {"hh dd mm", "08 07 03"},
  };
  for (const auto& [picture, text] : cases) EXPECT_EQ(vb::FormatDate(date, picture), text) << picture;
}

}  // namespace
