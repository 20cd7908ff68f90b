#pragma once

#include <string_view>

#include "base/controls/form.h"
#include "base/controls/list_view.h"
#include "src/module/session.h"

namespace goods {

/// Widths and alignments of a list view's columns from the suite's stored layout. A stored column that the list lacks is a
/// reported error.
void ApplyListviewLayout(basGoodsRequest& session, controls::ListView& list, std::string_view transactionName,
                         std::string_view moduleName);

/// The number of checked lines.
std::int32_t CountCheckedItems(const controls::ListView& list);

/// Enter in a box moves the focus on: sends {TAB} to the form. Other keys are left alone, and the key is not cleared.
void SendTabOnEnter(controls::Form& form, int character);

}  // namespace goods
