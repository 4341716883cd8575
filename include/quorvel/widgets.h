#pragma once

/// The widget models that a toolkit draws and tests drive.
#include "quorvel/widgets/controls.h"
#include "quorvel/widgets/dialog.h"
#include "quorvel/widgets/grid.h"
#include "quorvel/widgets/layout.h"
#include "quorvel/widgets/popup_menu.h"
#include "quorvel/widgets/widget.h"
