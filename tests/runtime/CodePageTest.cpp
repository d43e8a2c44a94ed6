#include "CodePage.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePage, WritesGermanTextOneByteACharacter) {
    EXPECT_EQ(toWindows1252(QStringLiteral("Äöüß €")), QByteArray("\xC4\xF6\xFC\xDF \x80"));
    EXPECT_EQ(toWindows1252(QStringLiteral("„Žuža“ – Œ…")), QByteArray("\x84\x8Eu\x9E"
                                                                       "a\x93 \x96 \x8C\x85"));
}

TEST(CodePage, WritesOneQuestionMarkForWhatItLacks) {
    EXPECT_EQ(toWindows1252(QStringLiteral("Kova\u010D, Mu\u0308ller")), QByteArray("Kovac, M\xFCller"));
    EXPECT_EQ(toWindows1252(QStringLiteral("Wałęsa, Đặng, Iğdır, Bến")),
              QByteArray("Walesa, Dang, Igdir, B\xEAn"));
    EXPECT_EQ(toWindows1252(QStringLiteral("a\u0416\U0001F41Fb")), QByteArray("a??b"));
    EXPECT_EQ(toWindows1252(QString(QChar(0xD83D)) + u'x'), QByteArray("?x"));
    EXPECT_EQ(toWindows1252(QString(QChar(0xDC1F)) + QChar(0xD83D)), QByteArray("??"));
    EXPECT_EQ(toWindows1252(QString(QChar(0x0080))), QByteArray("?"));
}

} // namespace
