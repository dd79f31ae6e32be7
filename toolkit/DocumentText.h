/// Texts as a text document of Qt can carry them. For the sources of this folder only.
#pragma once

#include "toolkit/core/Text.h"

#include <QString>
#include <QTextOption>

class QLineEdit;

/// A text for insertion into a document. LF stands for itself and begins a new block. A CR before a LF is drawn as
/// nothing, another one breaks the line within its block. The other characters that Qt takes for the end of a block or
/// a line become halves of pairs that can't stand in a valid text; Qt shows such a half like a character that the font
/// doesn't have.
QString ToDocument(StringView text);

/// Whether a unit of a document stands for a CR.
bool IsReturn(QChar unit);

/// What stands for a CR, before a LF or elsewhere.
QChar ReturnUnit(bool beforeLineEnd);

/// The text that a document, or a selection of it, stands for.
String FromDocument(QStringView units);

/// The text with each tab and each end of a line as a blank, character for character.
QString OneLine(QString text);

/// Keeps a field so while its text is edited.
void KeepOneLine(QLineEdit& field);

/// How a text is to be wrapped: anywhere if it has a line of more than 20,000 characters. Qt's search for the end of a
/// word takes time by the square of its length.
QTextOption::WrapMode WrapModeFor(StringView text);
