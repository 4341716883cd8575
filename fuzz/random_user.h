#pragma once

#include <initializer_list>

#include "fuzz/byte_source.h"
#include "fuzz/desk.h"

namespace quorvel::fuzz {

/// Uses one of a dialog's controls by name; at the end of the input, none.
void UseOneOf(Dialog& dialog, std::initializer_list<const char*> names, ByteSource& in);

/// Uses any control of a dialog, or its window's close button. The dialog may be gone afterwards.
void UseAny(Dialog& dialog, ByteSource& in);

/// Picks an item of the menu that is up, or takes the menu down; nothing when none is up.
void UseMenu(Desk& desk, ByteSource& in);

}  // namespace quorvel::fuzz
