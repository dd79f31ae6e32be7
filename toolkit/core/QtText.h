/// Our texts and those of Qt. For the sources of the layer alone.
#pragma once

#include "toolkit/core/Text.h"

#include <QString>

/// Unlike `QString::fromUcs4` it keeps a byte-order mark at the start. What is no character becomes U+FFFD.
QString ToQt(StringView text);

/// A half of a surrogate pair without the other becomes U+FFFD.
String FromQt(const QString& text);
