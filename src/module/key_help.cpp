#include "src/module/key_help.h"

namespace goods {
namespace {

constexpr KeyHelp kRegister[] = {
    {"Enter, double click", "edit the request"},
    {"Ctrl+Enter", "new request"},
    {"Ctrl+R", "new request with the lines of the selected one"},
    {"Delete", "cancel the request (asks, then wants a reason)"},
    {"Alt+N, E, D, P, C", "New, Edit, Delete, Print, Close"},
    {"Up, Down, PageUp, PageDown", "another request"},
    {"right button, menu key", "Refresh"},
    {"Alt+S, then typing",
     "search while you type, in the chosen column or else in the request numbers; red when nothing begins so"},
};

constexpr KeyHelp kCancelReason[] = {
    {"Alt+R", "the reason"},
    {"Enter in the reason", "to OK"},
    {"Alt+O", "cancels the request for this reason"},
};

constexpr KeyHelp kEditor[] = {
    {"Enter, double click", "change the line, or add the first one"},
    {"Ctrl+Enter", "add a line"},
    {"F10", "add or change"},
    {"Delete", "remove the line"},
    {"Ctrl+V", "take lines from a spreadsheet: code, quantity, remarks"},
    {"Ctrl+Z", "take back the last change of the lines, one after the other; a ticked document not"},
    {"right button, menu key", "the menu of the lines"},
    {"Enter in a box", "to the next box"},
    {"Esc", "close; asks when OK would store something new"},
};

constexpr KeyHelp kItemEntry[] = {
    {"F8", "switches scanning on and off"},
    {"Esc while scanning", "takes the last scan back; with none left it closes"},
    {"+ or Ctrl+Enter in the quantity", "takes the line"},
    {"F3", "list of items of the option that is set"},
    {"Shift+F3", "search dialog over the same items"},
    {"Enter in the empty code box", "to the fetch button"},
    {"First, Prev, Next, Last", "walk through the lines"},
};

constexpr KeyHelp kFetch[] = {
    {"Enter in the filter", "lists"},
    {"Up or Down in the filter, Ctrl+D anywhere", "into the list"},
    {"Enter in the list, double click, Alt+O", "takes the item, or all that are ticked"},
    {"Space, Ctrl+A in the list", "ticks the item, all items"},
    {"typing in the search box",
     "goes to the first item that begins so, in the column chosen beside it (the description where none is chosen)"},
    {"click on a heading", "sorts; a second click turns the order round"},
    {"Esc", "leaves"},
};

constexpr KeyHelp kPrint[] = {
    {"Up, Down", "another way to print"},
    {"OK", "prints as chosen"},
    {"Esc", "leaves"},
};

constexpr FormKeyHelp kForms[] = {
    {"frmMaster", kRegister}, {"frmcancelreason", kCancelReason},
    {"frmRequest", kEditor},  {"frmRequestDetail", kItemEntry},
    {"FrmFetch", kFetch},     {"frmPrint", kPrint},
};

}  // namespace

std::span<const FormKeyHelp> KeyHelpOfAllForms() {
  return kForms;
}

std::string KeysToTell(std::string_view form) {
  std::string text;
  for (const FormKeyHelp& help : kForms) {
    if (help.form != form) continue;
    for (const auto& [key, does] : help.keys) {
      text.append(text.empty() ? "" : "\r\n").append(key).append(": ").append(does);
    }
  }
  return text;
}

}  // namespace goods
