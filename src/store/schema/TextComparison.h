#pragma once

#include <QByteArrayView>
#include <QString>

/// The order of texts as a German user expects it, over UTF-8: without regard to case, an umlaut beside its
/// base letter, ß beside ss. Two texts are equal only if nothing but case tells them apart; ä is not a, ß is
/// not ss.
int compareTexts(QByteArrayView a, QByteArrayView b);

/// A character without its case. One character stays one: ß does not become ss.
constexpr char32_t foldedAscii(char32_t c) { return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c; }
char32_t foldedCharacter(char32_t c);
