#pragma once
// The whole widget layer in one include.

#include "widgets/component-strings.h"
#include "widgets/dpi-info.h"
#include "widgets/image-manager.h"
#include "widgets/machine-lock.h"
#include "widgets/single-application.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"
#include "widgets/vell-button.h"
#include "widgets/vell-check.h"
#include "widgets/vell-label.h"
#include "widgets/vell-locale.h"
#include "widgets/vell-mask.h"
#include "widgets/vell-message-sheet.h"
#include "widgets/vell-scroll-area.h"
#include "widgets/vell-time-combo-box.h"
