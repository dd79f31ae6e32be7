/// The kinds of files that the program takes.
#pragma once

#include "toolkit/core/Text.h"

struct FileType {
    StringView Name;
    /// With their dots, separated by ";".
    StringView Extensions;
    StringView MacType, MacCreator, MIMEType;
    bool Imported;
    StringView ConformsTo;
};

namespace FileTypes {
inline constexpr FileType TextPlain{
    .Name = U"text/plain",
    .Extensions = U".asc;.ascii;.bas;.c;.class;.cp;.cpp;.h;.hp;.hpp;.i3;.java;.m2;.m3;.mak;.text;.txt;.ini;.acf",
    .MacType = U"",
    .MacCreator = U"????",
    .MIMEType = U"",
    .Imported = true,
    .ConformsTo = U"public.text",
};
inline constexpr FileType pAllFileTypes[] = {TextPlain};
} // namespace FileTypes
