#pragma once

#include "platform/form_events.h"
#include "platform/form_model.h"

namespace korvale {

/// Why a form is shown larger or smaller than before.
enum class ScaleCause {
  kDragged,  ///< The user has it in hand and takes it to another monitor.
  kPlaced,   ///< The program has put it onto another monitor.
  kScreen    ///< Its monitor has changed, or what the user has chosen for all windows.
};

/// On a monitor of other dots per inch, a form takes the size of its model, not the one that
/// Windows suggests. `normal`: neither minimized nor maximized; `sized`: the user or
/// Windows is giving it another size.
bool TakesOwnSize(const FormState& form, bool normal, bool sized);

/// Whether it is then moved to where KeptOnMonitor says. What the user has in hand, or Windows
/// places, is left alone.
bool StaysOnMonitor(bool normal, ScaleCause cause);

/// Where a form of this place stays on its monitor, all in twips or all in pixels. `over`: most of
/// the place lies on another monitor, whose dots it would take on, become smaller and come back,
/// and so on without end.
TwipsRect KeptOnMonitor(TwipsRect place, const TwipsRect& workArea, bool over);

/// Tells a form of it (OnDpiChanged, or OnMetricsChanged, after which it must not reach beyond the
/// edge).
void TellScaled(FormEvents& events, ScaleCause cause);

}  // namespace korvale
