#pragma once

#include "base/report_locale.h"
#include "host/bell.h"
#include "interaction/dialog_models.h"

namespace zkp {

/// Checks a text box by the marker in its tag, in any case, and rewrites its text; True accepts the
/// input. "[PADL]" pads on the left with blanks up to `MaxLength` (Error 5 for a longer text);
/// "[DATE]" turns a date into the locale's short date; "[NUM]" turns a blank text into 0. What is no
/// date or number beeps and is refused. The markers are tested in this order, and the first that
/// decides ends the check; a blank text is left by "[DATE]" to the next one.
bool CheckByTag(TextBoxModel& box, const ReportLocale& locale, Bell& bell);

} // namespace zkp
