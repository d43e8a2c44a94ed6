#include "Script.h"

#include <gtest/gtest.h>

namespace {

QStringList wordsOf(const QString& line) {
    const auto commands = parseScript(line);
    return commands.empty() ? QStringList() : commands.front().words;
}

TEST(Script, WordsAreSeparatedByBlanksAndQuotesHoldThem) {
    const struct {
        QString line;
        QStringList words;
    } cases[] = {
        {u"  login \t Admin \"\" "_qs, {u"login"_qs, u"Admin"_qs, QString()}},
        {u"type A.b \"zwei Worte\" c"_qs, {u"type"_qs, u"A.b"_qs, u"zwei Worte"_qs, u"c"_qs}},
        {u"set A.b \"a\\\"b\\\\c\\r\\nd\""_qs, {u"set"_qs, u"A.b"_qs, u"a\"b\\c\r\nd"_qs}},
        {u"cat \"SeqData\\FANG.csv\" temp\\new"_qs, {u"cat"_qs, u"SeqData\\FANG.csv"_qs, u"temp\\new"_qs}},
        {u"login O\"Brien '"_qs, {u"login"_qs, u"O\"Brien"_qs, u"'"_qs}},
    };
    for (const auto& one : cases) EXPECT_EQ(wordsOf(one.line), one.words) << qPrintable(one.line);
}

TEST(Script, ExpectedLinesBelongToTheCommandBeforeThem) {
    const auto commands =
        parseScript(u"front\r\n= Login\r\n\r\n# why\r\nshow A.b A.c\n= \n=  x \n=\nboxes"_qs);
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[0].expected, QStringList{u"Login"_qs});
    EXPECT_EQ(commands[1].line, 5);
    EXPECT_EQ(commands[1].expected, (QStringList{QString(), u" x "_qs, QString()}));
    EXPECT_TRUE(commands[2].expected.isEmpty());
}

} // namespace
