#include "RuntimeError.h"

#include <gtest/gtest.h>

namespace {

TEST(RuntimeErrors, HaveTheirGermanWords) {
    EXPECT_EQ(runtimeError(5).description.toStdString(),
              "Ungültiger Prozeduraufruf oder ungültiges Argument");
    EXPECT_EQ(runtimeError(94).description.toStdString(), "Unzulässige Verwendung von Null");
    EXPECT_EQ(runtimeError(3021).description.toStdString(), "Kein aktueller Datensatz.");
    EXPECT_EQ(runtimeError(3464).description.toStdString(), "Datentypen in Kriterienausdruck unverträglich.");
    EXPECT_EQ(runtimeError(3021).number, 3021);
}

TEST(RuntimeErrors, NameTheirSubject) {
    EXPECT_EQ(runtimeError(3024, QStringLiteral("C:\\a%1b.dat")).description.toStdString(),
              "Datei 'C:\\a%1b.dat' nicht gefunden.");
    EXPECT_EQ(runtimeError(3024).description.toStdString(), "Datei nicht gefunden.");
    EXPECT_EQ(runtimeError(6, QStringLiteral("x")).description.toStdString(), "Überlauf");
}

TEST(RuntimeErrors, NeverShowAPlaceholderOrNothing) {
    for (int number = -1; number < 4000; ++number) {
        const auto error = runtimeError(number);
        EXPECT_FALSE(error.description.isEmpty() || error.description.contains(u'%')) << number;
    }
}

TEST(RuntimeErrors, UnknownHaveTheGeneralWords) {
    for (const int number : {-2147483647, 0, 8, 3000, 9999})
        EXPECT_EQ(runtimeError(number).description.toStdString(),
                  "Anwendungs- oder objektdefinierter Fehler");
}

} // namespace
