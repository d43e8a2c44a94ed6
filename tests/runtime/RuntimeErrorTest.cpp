#include "RuntimeError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(RuntimeErrors, HaveTheirGermanWordsAndNameTheirSubject) {
    EXPECT_EQ(runtimeError(RuntimeError::noCurrentRecord).number, 3021);
    EXPECT_EQ(runtimeError(RuntimeError::noCurrentRecord).description, u"Kein aktueller Datensatz.");
    EXPECT_EQ(runtimeError(RuntimeError::databaseNotFound, u"C:\\a%1b.dat"_s).description,
              u"Datei 'C:\\a%1b.dat' nicht gefunden.");
    EXPECT_EQ(runtimeError(RuntimeError::databaseNotFound).description, u"Datei nicht gefunden.");
    EXPECT_EQ(runtimeError(RuntimeError::overflow, u"x"_s).description, u"Überlauf");
}

} // namespace
