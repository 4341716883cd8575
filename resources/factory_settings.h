#pragma once

#include "core/record/mux_data.h"

namespace quorvel {

/// Gives every setting of a record the value that it has in a device fresh from the factory. The
/// record's identity says which model family: settings are coded differently on some.
void ApplyFactorySettings(MuxData& rec);

}  // namespace quorvel
