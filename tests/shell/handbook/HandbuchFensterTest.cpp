#include "Handbuch.h"
#include "Screens.h"
#include "Toolbar.h"

#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace {

void write(const QString& path, const QString& title) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(u"<title>%1</title>"_qs.arg(title).toUtf8());
}

/// Clicks as the window system does: a locked window gets no click.
void clickKey(const QString& name) {
    const QWidget* key = screen<Handbuch>().Toolbar1->key(name);
    QTest::mouseClick(key->window()->windowHandle(), Qt::LeftButton, {},
                      key->mapTo(key->window(), key->rect().center()));
}

/// Runs `meanwhile` while a question locks all windows.
template<typename Work>
void duringQuestion(Work meanwhile) {
    QMessageBox question;
    QTimer::singleShot(0, &question, [&] {
        meanwhile();
        question.reject();
    });
    question.exec();
    QCoreApplication::processEvents();
}

} // namespace

TEST(Handbuch, CanBeReadDuringQuestionsHoweverManyAreOpen) {
    const QTemporaryDir folder;
    write(folder.filePath(u"index.html"_qs), u"Inhalt"_qs);
    write(folder.filePath(u"fangbuch.html"_qs), u"Fangbuch"_qs);
    const auto& book = screen<Handbuch>();
    const auto afterClick = [&](const QString& key) {
        clickKey(key);
        return book.windowTitle();
    };
    screen<Handbuch>().zeige(folder.filePath(u"fangbuch.html"_qs));
    duringQuestion([&] {
        EXPECT_EQ(afterClick(u"tbInhalt"_qs), u"Handbuch - Inhalt"_qs) << "opened before the question";
        duringQuestion([&] { EXPECT_EQ(afterClick(u"tbZurueck"_qs), u"Handbuch - Fangbuch"_qs); });
        EXPECT_EQ(afterClick(u"tbVor"_qs), u"Handbuch - Inhalt"_qs) << "after the upper question";
        clickKey(u"tbSchliessen"_qs);
        EXPECT_FALSE(book.isVisible());
        screen<Handbuch>().zeige(folder.filePath(u"fangbuch.html"_qs));
        EXPECT_EQ(afterClick(u"tbInhalt"_qs), u"Handbuch - Inhalt"_qs) << "opened during the question";
    });
    EXPECT_EQ(afterClick(u"tbZurueck"_qs), u"Handbuch - Fangbuch"_qs) << "after both";
    unload<Handbuch>();
}
