#include "mainwindow/Sentences.h"

#include <gtest/gtest.h>

namespace {

TEST(Sentences, ANumberHasItsFormOfTheWord)
{
    EXPECT_EQ(StatusSentence(12, {.lines = 612, .enabled = 580, .disabled = 1, .marked = 0}),
              U"Ligne 12 · 612 lignes, 580 activées, 1 désactivée, 0 sans équivalent");
}

} // namespace
