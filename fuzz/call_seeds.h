#pragma once

#include "fuzz/corpus.h"

namespace quorvel::fuzz {

/// Sequences of calls that reach every command and every dialog.
void CallSeeds(const Corpus& corpus);

}  // namespace quorvel::fuzz
