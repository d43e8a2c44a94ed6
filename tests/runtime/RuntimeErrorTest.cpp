#include "RuntimeError.h"

#include <gtest/gtest.h>

namespace {

TEST(RuntimeErrors, HaveTheirGermanWordsAndNameTheirSubject) {
    EXPECT_EQ(runtimeError(3021).number, 3021);
    EXPECT_EQ(runtimeError(3021).description, u"Kein aktueller Datensatz.");
    EXPECT_EQ(runtimeError(3024, u"C:\\a%1b.dat"_qs).description, u"Datei 'C:\\a%1b.dat' nicht gefunden.");
    EXPECT_EQ(runtimeError(3024).description, u"Datei nicht gefunden.");
    EXPECT_EQ(runtimeError(6, u"x"_qs).description, u"Überlauf");
    EXPECT_EQ(runtimeError(8).description, u"Anwendungs- oder objektdefinierter Fehler");
}

TEST(RuntimeErrors, NeverShowAPlaceholderOrNothing) {
    for (int number = -1; number < 4000; ++number) {
        const QString words = runtimeError(number).description;
        EXPECT_FALSE(words.isEmpty() || words.contains(u'%')) << number;
    }
}

} // namespace
