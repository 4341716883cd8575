#pragma once

#include <string_view>

#include "quorvel/identity.h"

namespace quorvel {

/// Sets the model flags that follow from the model code alone.
void SetModelFlags(Identity& id, Byte model_code);

/// RecorderKind of a multiplexer by its model name: 2 for a name ending in T, 1 in D, else 0; an
/// X at the end, and an M before the end or the X, are passed over.
[[nodiscard]] Byte RecorderKindByName(std::string_view model_name);

}  // namespace quorvel
