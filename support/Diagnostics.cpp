#include "support/Diagnostics.h"

#include "toolkit/Dialogs.h"

void TellAuthors(StringView what)
{
    MessageBox(Join({{U"Error !", U"Please contact the authors.", what}}, EndOfLine::Native));
}

void TellAuthorsShortly(StringView what) { MessageBox(Join({{ContactAuthors, what}}, EndOfLine::Native)); }
