#include "support/Status.h"

#include "support/Sounds.h"
#include "toolkit/DesktopWindow.h"

namespace Fncts {

void Dire(StringView sentence) { DesktopWindow::Say(sentence); }

void Refuser(StringView reason)
{
    BeepNbT(1);
    Dire(reason);
}

} // namespace Fncts
