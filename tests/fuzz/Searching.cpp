#include "tests/fuzz/Input.h"
#include "tests/mainwindow/SearchLaws.h"

void Fuzz(Input& input)
{
    const String text = input.Text();
    String word = input.Text();
    // A piece of the text itself is found more often than a word of its own.
    if (word.empty()) word = FoldCase(Middle(text, input.UpTo(std::ssize(text)), input.UpTo(std::ssize(text))));
    const Int64 start = input.UpTo(std::ssize(text));
    ExpectLawfulSearches(text, word, {start, input.UpTo(std::ssize(text) - start)});
}
