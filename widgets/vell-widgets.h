#pragma once
// The whole widget layer in one include.

#include "component-strings.h"
#include "dpi-info.h"
#include "image-manager.h"
#include "machine-lock.h"
#include "single-application.h"
#include "style-manager.h"
#include "ui-path-manager.h"
#include "vell-button.h"
#include "vell-check.h"
#include "vell-label.h"
#include "vell-locale.h"
#include "vell-mask.h"
#include "vell-message-sheet.h"
#include "vell-scroll-area.h"
#include "vell-time-combo-box.h"
