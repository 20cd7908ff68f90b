// What a request of forty lines costs the person at the counter: keys, counted by pressing them. The characters of codes and
// quantities are not counted, a scanner's Enter is.

#include <cstdio>

#include "base/controls/keyboard.h"
#include "base/vb/text.h"
#include "bench/bench_shop.h"
#include "bench/measurements.h"
#include "bench/stopwatch.h"
#include "src/editor/frm_request.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/item_lookup.h"
#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace bench {
namespace {

constexpr int kRuns = 5;
constexpr int kCounterLines = 40;
constexpr int kPastedLines = 1000;

using Codes = std::vector<std::string>;

Codes SomeCodes(BenchShop& shop, int count) {
  const late::ArrayPtr rows = goods::ReadRows(shop.session, "select top " + std::to_string(count) +
                                                                " a.itemcode from aItem a,aShopItemDetail s where s.shopid=1 and "
                                                                "a.itemid=s.itemid and a.active=1 and a.forsales=1 and "
                                                                "a.itemtype<>'B' order by a.itemid desc");
  Codes codes;
  for (std::size_t row = 0; row < rows->columns; ++row) codes.push_back(rows->At(0, row).ToText());
  return codes;
}

std::string TableOf(const Codes& codes) {
  std::string table;
  for (const std::string& code : codes) table += code + "\t2\r\n";
  return table;
}

/// Counts the keys that are pressed.
class Person {
 public:
  void Press(controls::Form& form, const char* name) {
    controls::KeyStroke key;
    if (!controls::ParseKey(name, key)) std::fprintf(stderr, "no such key: %s\n", name);
    controls::PressKey(form, key);
    ++keys;
  }
  int keys = 0;
};

/// A shop with an editor that is opened for a new request.
class Counter {
 public:
  Counter(const std::string& name, int items) : shop(TemporaryFile(name), {0, items, 1}) {
    shop.LogOn();
    shop.database->RunScript("update aShops set MaxRequestItemsToHQ=0");
    shop.database->RunScript("update ashopitemdetail set ItemReorderLevel=-1000000");  // nothing to propose
    shop.module.Register().Load();
    editor = std::make_shared<goods::frmRequest>(shop.session, view);
  }
  /// Runs the work in the editor of a new request; how many lines there are then.
  int NewRequest(const std::function<void()>& work) {
    int lines = 0;
    shop.session.gStrEntryMode = "N";
    shop.desktop.work = [&](controls::Form&) {
      work();
      lines = editor->lvwrequest.Count();
    };
    editor->Show();
    return lines;
  }
  /// Runs the work in item entry over it.
  int EnterItems(Person& person, const std::function<void(goods::frmRequestDetail&)>& work) {
    return NewRequest([&] {
      editor->lvwrequest.SetFocus();
      shop.desktop.work = [&](controls::Form& form) { work(dynamic_cast<goods::frmRequestDetail&>(form)); };
      person.Press(*editor, "Ctrl+Enter");
    });
  }

  BenchShop shop;
  goods::RegisterView view{shop.module.Register().flexMaster, ""};
  std::shared_ptr<goods::frmRequest> editor;
};

/// The keys of one way to enter the lines; negative when they did not become kCounterLines.
int KeysOf(const Person& person, int lines) {
  if (lines != kCounterLines) std::fprintf(stderr, "%d lines instead of %d\n", lines, kCounterLines);
  return lines == kCounterLines ? person.keys : -1;
}

int ByScanning(Counter& counter, const Codes& codes) {
  Person person;
  const int lines = counter.EnterItems(person, [&](goods::frmRequestDetail& form) {
    person.Press(form, "F8");
    for (const std::string& code : codes) {
      form.txtitemcode.SetText(code);
      person.Press(form, "Enter");
    }
  });
  counter.shop.session.isScanning = false;
  return KeysOf(person, lines);
}

/// `takes` are the keys that take the line once the quantity is typed.
int ByCode(Counter& counter, const Codes& codes, std::initializer_list<const char*> takes) {
  Person person;
  const int lines = counter.EnterItems(person, [&](goods::frmRequestDetail& form) {
    for (const std::string& code : codes) {
      form.txtitemcode.SetText(code);
      person.Press(form, "Enter");
      form.txtQuantity.SetText("2");
      for (const char* key : takes) person.Press(form, key);
    }
  });
  return KeysOf(person, lines);
}

int ByPasting(Counter& counter, const Codes& codes) {
  Person person;
  counter.shop.desktop.PutOnClipboard(TableOf(codes));
  const int lines = counter.NewRequest([&] {
    counter.editor->lvwrequest.SetFocus();
    person.Press(*counter.editor, "Ctrl+V");
  });
  ++person.keys;  // Enter in the message
  return KeysOf(person, lines);
}

/// The register's last request, which asks for the codes' items.
int ByRepeating(Counter& counter, const Codes& codes) {
  counter.shop.database->RunScript(
      "insert into mosGoodsRequestHeader(GRHrequestID,grhshopid,grhrequestno,grhrequestdate,grhrequesttype,GRHcancel) "
      "values(900,1,'GR24/900','20240315','G',0)");
  for (const std::string& code : codes) {
    counter.shop.database->RunScript(
        "insert into mosGoodsRequestDetail(GRDDetailid,GRDshopID,GRDrequestID,GRDitemID,GRDgoodQty) "
        "select itemid,1,900,itemid,2 from aItem where itemcode='" +
        code + "'");
  }
  Person person;
  int lines = 0;
  goods::frmMaster& requests = counter.shop.module.Register();
  requests.Unload();
  counter.shop.desktop.work = [&](controls::Form& form) {
    requests.flexMaster.SetRow(requests.flexMaster.Rows() - 1);
    counter.shop.desktop.work = [&](controls::Form& editor) {
      lines = dynamic_cast<goods::frmRequest&>(editor).lvwrequest.Count();
    };
    person.Press(form, "Ctrl+R");
  };
  requests.Show();
  return KeysOf(person, lines);
}

void PrintKeys(const std::string& way, int keys, int limit, const std::string& before) {
  PrintRow("40 lines " + way, keys, limit, "keys", before);
}

void MeasureKeys() {
  Counter counter("counter", 0);
  const Codes codes = SomeCodes(counter.shop, kCounterLines);
  const int enters = ByCode(counter, codes, {"Enter", "Enter", "Enter"});
  const int altO = ByCode(counter, codes, {"Alt+O"});
  PrintKeys("by scanning, the scanner's Enter and F8", ByScanning(counter, codes), kCounterLines + 2,
            "before " + std::to_string(enters));
  PrintKeys("by code and quantity, + takes the line", ByCode(counter, codes, {"+"}), 2 * kCounterLines + 1,
            "before " + std::to_string(enters) + " on the number pad, " + std::to_string(altO) + " with Alt+O");
  PrintKeys("pasted", ByPasting(counter, codes), 2, "before " + std::to_string(enters));
  PrintKeys("by repeating a request", ByRepeating(counter, codes), 1, "before " + std::to_string(enters));
}

/// The look-ups of all codes and the units of their items, and nothing else.
double LookUp(Counter& counter, const Codes& codes) {
  goods::CommonDb db(counter.shop.registry, counter.shop.session.gAdoCon);
  return Time([&] {
    goods::UnitCodes units(counter.shop.session);
    for (const std::string& code : codes) {
      if (const auto item = goods::FindItemByCode(counter.shop.session, db, code)) units.Of(item->itemId);
    }
  });
}

void MeasurePasting() {
  Counter counter("pasting", kPastedLines);
  const Codes codes = SomeCodes(counter.shop, kPastedLines);
  const std::string table = TableOf(codes);
  const auto paste = [&] {
    double time = 0;
    const int lines = counter.NewRequest([&] { time = Time([&] { counter.editor->lvwrequest.Pasted.Fire(table); }); });
    return lines == kPastedLines ? time : -1;
  };
  const Pair pair = MeasurePair(kRuns, paste, [&] { return LookUp(counter, codes); });
  char detail[80];
  std::snprintf(detail, sizeof(detail), "%.1f ms, the look-ups alone %.1f ms", pair.ours, pair.reference);
  PrintRow("1,000 lines pasted", pair.Ratio(), 1.5, "x", detail);
}

}  // namespace

void MeasureCounter() {
  MeasureKeys();
  MeasurePasting();
}

}  // namespace bench
