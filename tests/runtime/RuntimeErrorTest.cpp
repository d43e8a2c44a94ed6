#include "RuntimeError.h"

#include <gtest/gtest.h>

namespace {

TEST(RuntimeErrors, HaveTheirGermanWordsAndNameTheirSubject) {
    EXPECT_EQ(runtimeError(RuntimeError::noCurrentRecord).number, 3021);
    EXPECT_EQ(runtimeError(RuntimeError::noCurrentRecord).description, u"Kein aktueller Datensatz.");
    EXPECT_EQ(runtimeError(RuntimeError::databaseNotFound, u"C:\\a%1b.dat"_qs).description,
              u"Datei 'C:\\a%1b.dat' nicht gefunden.");
    EXPECT_EQ(runtimeError(RuntimeError::databaseNotFound).description, u"Datei nicht gefunden.");
    EXPECT_EQ(runtimeError(RuntimeError::overflow, u"x"_qs).description, u"Überlauf");
}

} // namespace
