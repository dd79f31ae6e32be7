#include "engine/Names.h"

#include <algorithm>

String Fncts::NrmStgEnc(StringView text) { return CanonicalForm(text); }

String Fncts::Naff(StringView name, bool toPath, bool normalise)
{
    String swapped(name);
    std::replace(swapped.begin(), swapped.end(), toPath ? U':' : U'/', toPath ? U'/' : U':');
    return toPath && normalise ? NrmStgEnc(swapped) : swapped;
}
