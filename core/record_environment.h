#pragma once

#include "core/commit.h"
#include "core/modified_blocks.h"
#include "quorvel/identity.h"

namespace quorvel {

/// What a record needs of its surroundings: which editor is committing, what device the values
/// belong to, and where changed blocks are remembered. Outlives the records that refer to it.
struct RecordEnvironment {
  CommitFlags commit;
  clsBlkSave blocks;
  Identity identity;
};

}  // namespace quorvel
