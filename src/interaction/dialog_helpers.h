#pragma once

#include "interaction/dialog_models.h"

namespace zkp {

/// What a text box does when it gets the focus.
void SelectAllText(TextBoxModel& box);

/// In the middle of the screen, or of the owner's inner area. As in an owner's own co-ordinates, the
/// owner's place on the screen does not count.
void CenterForm(FormPlace& form, const ScreenSize& screen);
void CenterForm(FormPlace& form, const FormPlace& owner);

/// Chooses the last row that equals the text, blanks around both apart; a blank text does nothing.
/// `found` starts at the caller's value, or at -1, and takes every match. Only a row above 0 is
/// chosen, so that a match in the first row is found but not chosen. Error 380 when the row to
/// choose is not there.
void SelectInList(ListModel& list, const QString& text, int* found = nullptr);

/// Gives the font the Greek character set, or set 0 under its own name when it has no Greek form.
void SetGreekCharset(FontModel& font);

} // namespace zkp
