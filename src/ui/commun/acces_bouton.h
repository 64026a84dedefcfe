#pragma once

/// From now on an assistive program finds the tabs and commands of the bar as what they are, and what it does
/// to a button or a box is what the mouse does. Calling it again changes nothing.
void InstallerAccesBoutons();
