#pragma once

#include <string>
#include <vector>

/// Every key that the users' page names, with what is to be seen once it is pressed: one table, for every desktop that has keys.
namespace keys {

enum class Effect {
  Opens,    ///< the form with this title
  Asks,     ///< a message with this text, which is answered by the button `answer`; then the form `form`, where one is named
  Menu,     ///< a menu
  Closes,   ///< the form; the one with this title is in front then, "" where it was the last
  Focus,    ///< is at this place: "list", the label of a box, the caption of a button
  Holds,    ///< the box that has the focus holds this text
  Selects,  ///< the row with this cell
  Lists,    ///< so many rows
  Copies,   ///< a text with this in it is on the clipboard
  Turns,    ///< to the page with this caption
  Shows     ///< the box of `label` shows `shows`
};

struct Key {
  std::string at = {};     ///< where the focus is before: "list" or the label of a box; "" for where it is already
  std::string typed = {};  ///< before the key
  std::string key = {};    ///< by its name; "Menu" for the key that opens menus
  std::string then = {};   ///< typed after it
  Effect effect = Effect::Focus;
  std::string what = {};
  std::string answer = {};
  std::string form = {};
  std::string label = {};  ///< the box that shows `shows` then; "" where none is looked at
  std::string shows = {};
  std::vector<std::string> back = {};  ///< the keys that lead back to the form
};

/// The keys of one form, in an order in which one person can press them.
struct FormKeys {
  std::string page;  ///< the heading on the users' page that the form is described under
  std::string title;
  std::vector<Key> way;  ///< the keys that lead there, from the register; the last of them opens it again once it was closed
  std::vector<Key> keys;
};

/// In the sample shop on 15 March 2024, as its first user.
const std::vector<FormKeys>& Table();

}  // namespace keys
