#include "platform/windows/desktop/text_entry_view.h"

#include <algorithm>

#include "base/vb/text.h"
#include "platform/windows/desktop/clipboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {

TextEntryView::Selection TextEntryView::ShowEntry() const {
  const std::string text = entry_.Text();
  const std::wstring wide = Wide(text);
  if (WindowText(Handle()) != wide) SetWindowTextW(Handle(), wide.c_str());
  const auto units = [&](int characters) { return static_cast<int>(Wide(vb::Left(text, characters)).size()); };
  return {units(entry_.SelStart()), units(entry_.SelStart() + entry_.SelLength())};
}

TextEntryView::Selection TextEntryView::SelectionIn(const std::wstring& text, UINT message) const {
  DWORD start = 0;
  DWORD end = 0;
  Send(Handle(), message, &start, &end);
  const auto characters = [&](DWORD units) {
    return static_cast<int>(vb::Len(Utf8(std::wstring_view(text).substr(0, std::min<std::size_t>(units, text.size())))));
  };
  return {characters(start), characters(end)};
}

bool TextEntryView::Copy() {
  if (!HasEdit()) return false;
  Pull();
  if (entry_.SelLength() > 0) PutOnClipboard(Handle(), entry_.SelText());
  return true;
}

bool TextEntryView::Cut() {
  if (!Copy()) return false;
  if (entry_.SelLength() > 0) entry_.TypeOver("");
  return true;
}

bool TextEntryView::Paste() {
  if (!HasEdit()) return false;
  Pull();
  // Shown once it is all there: character by character, a long text would keep everybody waiting.
  const auto keep = entry_.Owner().weak_from_this().lock();
  const controls::TextEntry& entry = entry_;
  pasting_ = true;
  entry_.Paste(ClipboardText(Handle()));
  if (!entry.Owner().IsShown()) return true;  // this view is gone with its form
  pasting_ = false;
  Update(controls::Aspect::Text);
  return true;
}

}  // namespace windows
