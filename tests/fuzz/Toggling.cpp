#include "tests/fuzz/Input.h"
#include "tests/mainwindow/ToggleLaws.h"

void Fuzz(Input& input)
{
    const String text = input.Text();
    const Int64 start = input.UpTo(std::ssize(text));
    ExpectLawfulToggles(text, {start, input.UpTo(std::ssize(text) - start)});
}
