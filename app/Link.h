/// Labels that lead somewhere.
#pragma once

#include "toolkit/DesktopControls.h"

/// Makes the label a link: `follow` runs when the mouse goes down on it and comes up on it.
void MakeLink(DesktopLabel& label, std::function<void()> follow);
