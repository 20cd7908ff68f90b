#include "tests/keys/keys.h"

namespace keys {
namespace {

using enum Effect;

constexpr const char* kRegister = "Goods Request to HQ";
constexpr const char* kEditor = "Goods Request";
constexpr const char* kItemEntry = "Goods Request Details";
constexpr const char* kLookup = "Item Fetch";
constexpr const char* kFetch = "Fetch Item";
constexpr const char* kReason = "Reason for deletion";
constexpr const char* kStockOut = "Do you want to add stock out items?";
constexpr const char* kReallyDelete = "Are you sure you want to Delete GR24/12 ?";
constexpr const char* kFirstLine = "Jigsaw puzzle 1000 pieces";

std::vector<Key> operator+(std::vector<Key> way, Key next) {
  way.push_back(std::move(next));
  return way;
}

/// A request of three lines that may still be changed.
std::vector<Key> ToRequest() {
  return {{.at = "list", .key = "Alt+S", .then = "GR24/12", .effect = Selects, .what = "GR24/12"}};
}
std::vector<Key> ToEditor() {
  return ToRequest() + Key{.at = "list", .key = "Enter", .effect = Opens, .what = kEditor};
}
std::vector<Key> ToItemEntry() {
  return ToEditor() + Key{.at = "list", .key = "Ctrl+Enter", .effect = Opens, .what = kItemEntry};
}

FormKeys Register() {
  const Key newRequest{.at = "list", .effect = Asks, .what = kStockOut, .answer = "No", .form = kEditor, .back = {"Esc"}};
  Key byKeys = newRequest;
  byKeys.key = "Ctrl+Enter";
  Key byButton = newRequest;
  byButton.key = "Alt+N";
  return {"The register",
          kRegister,
          {},
          {
              {.key = "Alt+S", .then = "GR24/12", .effect = Selects, .what = "GR24/12"},
              {.key = "Enter", .effect = Focus, .what = "New"},
              {.at = "list", .key = "Shift+Tab", .effect = Focus, .what = "Close"},
              {.key = "Tab", .effect = Focus, .what = "list"},
              {.key = "Down", .effect = Selects, .what = "GR24/13"},
              {.key = "Up", .effect = Selects, .what = "GR24/12"},
              {.key = "PageUp", .effect = Selects, .what = "GR24/10"},
              {.key = "PageDown", .effect = Selects, .what = "GR24/9"},
              {.key = "Ctrl+C", .effect = Copies, .what = "Cancelled\tFinished\r\n17\tGR24/9\t"},
              {.key = "Ctrl+A", .effect = Focus, .what = "list"},
              {.key = "Ctrl+C", .effect = Copies, .what = "\r\n28\tGR24/20\t"},
              {.key = "Alt+S", .then = "GR24/12", .effect = Selects, .what = "GR24/12"},
              {.key = "Ctrl+Z", .effect = Holds, .what = "GR24/12"},
              {.at = "list",
               .key = "Enter",
               .effect = Opens,
               .what = kEditor,
               .label = "Request No:",
               .shows = "GR24/12",
               .back = {"Esc"}},
              {.key = "Delete", .effect = Asks, .what = kReallyDelete, .answer = "No"},
              {.key = "Menu", .effect = Menu, .back = {"Esc"}},
              byKeys,
              byButton,
              {.at = "list", .key = "Ctrl+R", .effect = Opens, .what = kEditor},
              {.key = "Esc", .effect = Asks, .what = "Save Changes?", .answer = "No", .form = kRegister},
              {.key = "Alt+E", .effect = Opens, .what = kEditor, .back = {"Esc"}},
              {.key = "Alt+D", .effect = Asks, .what = kReallyDelete, .answer = "No"},
              {.key = "Alt+P", .effect = Opens, .what = "Print", .back = {"Esc"}},
              {.key = "Alt+C", .effect = Closes},
          }};
}

FormKeys CancelReason() {
  return {
      "The register",
      kReason,
      ToRequest() + Key{.at = "list", .key = "Delete", .effect = Asks, .what = kReallyDelete, .answer = "Yes", .form = kReason},
      {
          {.key = "Tab", .effect = Focus, .what = "OK"},
          {.key = "Alt+R", .effect = Focus, .what = "Reason :"},
          {.typed = "Ordered twice", .key = "Enter", .effect = Focus, .what = "OK"},
          {.key = "Alt+O", .effect = Closes, .what = kRegister},
      }};
}

FormKeys Editor() {
  return {"The request editor",
          kEditor,
          ToEditor(),
          {
              {.at = "Request No:", .key = "Enter", .effect = Focus, .what = "Request Date:"},
              {.key = "Tab", .effect = Focus, .what = "Remarks:"},
              {.at = "list",
               .key = "Enter",
               .effect = Opens,
               .what = kItemEntry,
               .label = "Item:",
               .shows = kFirstLine,
               .back = {"Esc"}},
              {.key = "F10", .effect = Opens, .what = kItemEntry, .label = "Item:", .shows = kFirstLine, .back = {"Esc"}},
              {.key = "Ctrl+Enter", .effect = Opens, .what = kItemEntry, .label = "Item:", .shows = "", .back = {"Esc"}},
              {.at = "list", .key = "Ctrl+C", .effect = Copies, .what = kFirstLine},
              {.key = "Ctrl+V",
               .effect = Asks,
               .what = std::string("0 lines added.  1 line refused, ready on the clipboard to be mended and pasted again:    "
                                   "TY1003, 6.000: ") +
                       kFirstLine + " Already Exists",
               .answer = "OK"},
              {.key = "Delete",
               .effect = Asks,
               .what = std::string("Are you sure you want to delete  ") + kFirstLine,
               .answer = "No"},
              {.key = "Delete",
               .effect = Asks,
               .what = std::string("Are you sure you want to delete  ") + kFirstLine,
               .answer = "Yes",
               .form = kEditor},
              {.at = "list", .key = "Ctrl+Z", .effect = Selects, .what = kFirstLine},
              {.key = "Menu", .effect = Menu, .back = {"Esc"}},
              {.key = "Alt+R", .effect = Focus, .what = "Remarks:"},
              {.typed = "Games", .key = "Ctrl+Z", .effect = Holds, .what = "Toys for the fair"},
              {.key = "Alt+F", .effect = Focus, .what = "Confirm Finished", .back = {"Alt+F"}},
              {.key = "Ctrl+Tab", .effect = Turns, .what = "Customer Requests"},
              {.key = "Ctrl+Tab", .effect = Turns, .what = "Items"},
              {.key = "Alt+R", .then = "Games", .effect = Holds, .what = "Games"},
              {.key = "Esc", .effect = Asks, .what = "Save Changes?", .answer = "Cancel"},
              {.key = "Ctrl+Z", .effect = Holds, .what = "Toys for the fair"},
              {.key = "Esc", .effect = Closes, .what = kRegister},
              {.key = "Alt+C", .effect = Closes, .what = kRegister},
              {.key = "Alt+O", .effect = Closes, .what = kRegister},
          }};
}

FormKeys ItemEntry() {
  return {"Item entry",
          kItemEntry,
          ToItemEntry(),
          {
              {.key = "Enter", .effect = Focus, .what = "Fetch"},
              {.key = "Alt+B", .effect = Focus, .what = "Barcode:"},
              {.key = "Tab", .effect = Focus, .what = "Part Code:"},
              {.key = "F3", .effect = Opens, .what = kLookup, .back = {"Esc"}},
              {.key = "Shift+F3", .effect = Opens, .what = kFetch, .back = {"Esc"}},
              {.key = "Alt+E", .effect = Opens, .what = kLookup, .back = {"Esc"}},
              {.key = "Alt+S", .effect = Focus, .what = "Stock Out Items"},
              {.key = "Enter", .effect = Focus, .what = "Fetch"},
              {.at = "Barcode:",
               .typed = "KT1001",
               .key = "Enter",
               .effect = Focus,
               .what = "Quantity:",
               .label = "Quantity:",
               .shows = "40"},
              {.typed = "12", .key = "Ctrl+Z", .effect = Holds, .what = "40"},
              {.typed = "2,5", .key = "Enter", .effect = Focus, .what = "Comments:", .label = "Quantity:", .shows = "2.5"},
              {.typed = "for the fair", .key = "Enter", .effect = Focus, .what = "Ok"},
              {.key = "Alt+Q", .effect = Focus, .what = "Quantity:"},
              {.key = "Alt+M", .effect = Focus, .what = "Comments:"},
              {.key = "Alt+O", .effect = Focus, .what = "Barcode:", .label = "Item:", .shows = ""},
              {.at = "Barcode:", .typed = "KT1002", .key = "Enter", .effect = Focus, .what = "Quantity:"},
              {.typed = "3", .key = "Ctrl+Enter", .effect = Focus, .what = "Barcode:", .label = "Item:", .shows = ""},
              {.key = "F8", .effect = Focus, .what = "Barcode:"},
              {.typed = "KT1003", .key = "Enter", .effect = Shows, .label = "Barcode:", .shows = ""},
              {.key = "Esc", .effect = Focus, .what = "Barcode:"},
              {.key = "F8", .effect = Focus, .what = "Barcode:"},
              {.key = "Alt+F", .effect = Shows, .label = "Item:", .shows = kFirstLine},
              {.key = "Alt+X", .effect = Shows, .label = "Item:", .shows = "Dice, 5 pieces, 16 mm"},
              {.key = "Alt+L", .effect = Shows, .label = "Item:", .shows = "Frying pan 24 cm"},
              {.key = "Alt+P", .effect = Shows, .label = "Item:", .shows = "Frying pan 20 cm"},
              {.key = "Esc", .effect = Closes, .what = kEditor},
              {.key = "Alt+C", .effect = Closes, .what = kEditor},
          }};
}

FormKeys Lookup() {
  return {"The lists of items",
          kLookup,
          ToItemEntry() + Key{.key = "F3", .effect = Opens, .what = kLookup},
          {
              {.typed = "Chef", .effect = Lists, .what = "1"},
              {.key = "Esc", .effect = Closes, .what = kItemEntry},
              {.key = "Down", .effect = Selects, .what = "KT1002"},
              {.key = "Up", .effect = Selects, .what = "KT1001"},
              {.key = "Tab", .effect = Focus, .what = "in"},
              {.key = "Alt+T", .effect = Focus, .what = "Sort by:"},
              {.key = "Alt+I", .effect = Focus, .what = "in"},
              {.key = "Alt+S", .effect = Focus, .what = "Search:"},
              {.typed = "Chef", .key = "Ctrl+Z", .effect = Holds, .what = ""},
              {.key = "Enter", .effect = Closes, .what = kItemEntry, .label = "Item:", .shows = "Frying pan 20 cm"},
              {.typed = "Chef",
               .key = "Alt+O",
               .effect = Closes,
               .what = kItemEntry,
               .label = "Item:",
               .shows = "Chef's knife 20 cm"},
              {.key = "Alt+C", .effect = Closes, .what = kItemEntry},
          }};
}

FormKeys Fetch() {
  return {"The lists of items",
          kFetch,
          ToItemEntry() + Key{.key = "Shift+F3", .effect = Opens, .what = kFetch},
          {
              {.typed = "knife", .key = "Enter", .effect = Lists, .what = "5"},
              {.key = "Up", .effect = Focus, .what = "list"},
              {.key = "Alt+F", .effect = Focus, .what = "Fetch On:"},
              {.key = "Alt+S", .effect = Focus, .what = "Search On:"},
              {.key = "Tab", .then = "Paring knife 8", .effect = Selects, .what = "Paring knife 8 cm"},
              {.key = "Ctrl+D", .effect = Focus, .what = "list"},
              {.key = "Enter", .effect = Closes, .what = kItemEntry, .label = "Item:", .shows = "Paring knife 8 cm"},
              {.typed = "knife", .key = "Enter", .effect = Lists, .what = "5"},
              {.key = "Ctrl+D", .effect = Focus, .what = "list"},
              {.key = "Space", .effect = Focus, .what = "list"},
              {.key = "Ctrl+A", .effect = Focus, .what = "list"},
              {.key = "Esc", .effect = Closes, .what = kItemEntry},
              {.typed = "chef", .key = "Enter", .effect = Lists, .what = "1"},
              {.key = "Alt+O", .effect = Closes, .what = kItemEntry, .label = "Item:", .shows = "Chef's knife 20 cm"},
              {.key = "Esc", .effect = Closes, .what = kItemEntry},
              {.key = "Alt+C", .effect = Closes, .what = kItemEntry},
          }};
}

FormKeys Print() {
  return {"Printing",
          "Print",
          ToRequest() + Key{.at = "list", .key = "Alt+P", .effect = Opens, .what = "Print"},
          {
              {.key = "Tab", .effect = Focus, .what = "OK"},
              {.key = "Shift+Tab", .effect = Focus, .what = "To Screen"},
              {.key = "Down", .effect = Focus, .what = "To Printer"},
              {.key = "F1",
               .effect = Asks,
               .what = "Up, Down: another way to print  OK: prints as chosen  Esc: leaves",
               .answer = "OK"},
              {.key = "Up", .effect = Focus, .what = "To Screen"},
              {.key = "Esc", .effect = Closes, .what = kRegister},
          }};
}

}  // namespace

const std::vector<FormKeys>& Table() {
  static const std::vector<FormKeys> table = {Register(), CancelReason(), Editor(), ItemEntry(), Lookup(), Fetch(), Print()};
  return table;
}

}  // namespace keys
