#include "src/records/request_draft.h"

#include <gtest/gtest.h>

namespace {

goods::RequestDraft Draft() {
  goods::RequestDraft draft;
  draft.savedAt = vb::MakeDate(2024, 3, 15, 10, 30, 5);
  draft.isNew = false;
  draft.basedOn = "2024-03-14 08:00:00.123";
  draft.savingId = 18;
  draft.savingNumber = "GR/18";
  draft.request.id = 17;
  draft.request.number = "GR/17";
  draft.request.date = " 15/03/2024 ";
  draft.request.type = goods::RequestType::PurchaseOrder;
  draft.request.remarks = "line: one\r\n\ttwo \\ three\xC3\xA9";
  draft.request.finished = true;
  draft.request.lines = {{"A1", "Tea: 5 \"fine\"", "1,234.500", 7, "", "PCS", "P\t1"},
                         {"", "", "", -3, "end: 1 lines\n", "", ""}};
  draft.request.links = {{goods::CustomerLink::Kind::Invoice, 5, "IN/5", 1}, {goods::CustomerLink::Kind::Reexport, 6, "RE/6", 2}};
  return draft;
}

TEST(RequestDrafts, ComeBackAsTheyWereWritten) {
  const goods::RequestDraft written = Draft();
  const auto read = goods::ParseDraft(goods::DraftText(written));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->request, written.request);
  EXPECT_EQ(read->savedAt.days, written.savedAt.days);
  EXPECT_EQ(read->basedOn, written.basedOn);
  EXPECT_FALSE(read->isNew);
  EXPECT_EQ(read->savingId, 18);
  EXPECT_EQ(read->savingNumber, "GR/18");
  const auto empty = goods::ParseDraft(goods::DraftText({}));
  ASSERT_TRUE(empty);
  EXPECT_TRUE(empty->isNew);
}

TEST(RequestDrafts, MayHaveBeenSavedWithTheLineEndsOfAnEditor) {
  std::string text;
  for (const char character : goods::DraftText(Draft())) text += character == '\n' ? "\r\n" : std::string(1, character);
  const auto read = goods::ParseDraft(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->request, Draft().request);
}

TEST(RequestDrafts, ThatEndEarlyOrAreDamagedAreNotRead) {
  const std::string text = goods::DraftText(Draft());
  for (std::size_t length = 0; length + 1 < text.size(); ++length) {
    EXPECT_FALSE(goods::ParseDraft(text.substr(0, length))) << length;
  }
  std::string other = text;
  other.replace(other.find("version 1"), 9, "version 2");
  EXPECT_FALSE(goods::ParseDraft(other));
  std::string item = text;
  item.replace(item.find("line: 7"), 7, "line: x");
  EXPECT_FALSE(goods::ParseDraft(item));
}

}  // namespace
