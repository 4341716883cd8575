#pragma once

/// The widget models that a toolkit draws and tests drive.
#include "quorvel/clock_time.h"
#include "quorvel/widgets/choice.h"
#include "quorvel/widgets/control_array.h"
#include "quorvel/widgets/controls.h"
#include "quorvel/widgets/dialog.h"
#include "quorvel/widgets/grid.h"
#include "quorvel/widgets/layout.h"
#include "quorvel/widgets/pickers.h"
#include "quorvel/widgets/placement.h"
#include "quorvel/widgets/popup_menu.h"
#include "quorvel/widgets/slider.h"
#include "quorvel/widgets/text_box.h"
#include "quorvel/widgets/text_series.h"
#include "quorvel/widgets/widget.h"
