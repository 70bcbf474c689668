#pragma once

/// Labels that are pressed with Space like buttons, for screen readers: links, and those that open a menu.
namespace pressableLabel {

/// Lets screen readers know LinkLabel and UnitChooser for what they are; both call it.
void install();

} // namespace pressableLabel
