/// The kinds of files that the program takes: their extensions, with their dots, separated by ";".
#pragma once

#include "toolkit/core/Text.h"

namespace FileTypes {
inline constexpr StringView TextPlain =
    U".asc;.ascii;.bas;.c;.class;.cp;.cpp;.h;.hp;.hpp;.i3;.java;.m2;.m3;.mak;.text;.txt;.ini;.acf";
} // namespace FileTypes
