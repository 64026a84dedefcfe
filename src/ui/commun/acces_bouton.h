#pragma once

/// From now on an assistive program finds the tabs and commands of the bar as what they are, and a press
/// of it does what the mouse does. Calling it again changes nothing.
void InstallerAccesBoutons();
