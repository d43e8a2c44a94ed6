#pragma once

#include <QByteArrayView>
#include <QString>

/// Compares two UTF-8 texts in the order a German user expects: without regard to case, an umlaut beside its
/// base letter, ß beside ss. Returns a negative number, 0 or a positive one. Texts are equal only if nothing
/// but case tells them apart: ä is not a, ß is not ss.
int compareTexts(QByteArrayView a, QByteArrayView b);

/// The character without its case. One character stays one: ß does not become ss.
constexpr char32_t foldedAscii(char32_t c) { return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c; }
char32_t foldedCharacter(char32_t c);
