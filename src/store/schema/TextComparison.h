#pragma once

#include <QByteArrayView>
#include <QList>

/// Compares two UTF-8 texts in the order a German user expects: without regard to case, an umlaut beside its
/// base letter, ß beside ss. Returns a negative number, 0 or a positive one. Texts are equal only if nothing
/// but case tells them apart: ä is not a, ß is not ss.
int compareTexts(QByteArrayView a, QByteArrayView b);

/// The characters of a UTF-8 text without their case. One character stays one: ß does not become ss.
QList<char32_t> foldedText(QByteArrayView text);
constexpr char32_t foldedAscii(char32_t c) { return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c; }
