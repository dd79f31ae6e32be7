/// The kinds of files that the program takes.
#pragma once

#include "toolkit/core/Text.h"

struct FileType {
    /// With their dots, separated by ";".
    StringView Extensions;
};

namespace FileTypes {
inline constexpr FileType TextPlain{
    U".asc;.ascii;.bas;.c;.class;.cp;.cpp;.h;.hp;.hpp;.i3;.java;.m2;.m3;.mak;.text;.txt;.ini;.acf"};
} // namespace FileTypes
