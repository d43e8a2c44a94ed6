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

using namespace Qt::StringLiterals;

namespace {

void write(const QString& path, const QString& title) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(u"<title>%1</title>"_s.arg(title).toUtf8());
}

/// Clicks as the window system does: a locked window gets no click.
void clickKey(const QString& name) {
    const QWidget* key = the<Handbuch>().Toolbar1->key(name);
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
    write(folder.filePath(u"index.html"_s), u"Inhalt"_s);
    write(folder.filePath(u"fangbuch.html"_s), u"Fangbuch"_s);
    const auto& book = the<Handbuch>();
    const auto afterClick = [&](const QString& key) {
        clickKey(key);
        return book.windowTitle();
    };
    the<Handbuch>().zeige(folder.filePath(u"fangbuch.html"_s));
    duringQuestion([&] {
        EXPECT_EQ(afterClick(u"tbInhalt"_s), u"Handbuch - Inhalt"_s) << "opened before the question";
        duringQuestion([&] { EXPECT_EQ(afterClick(u"tbZurueck"_s), u"Handbuch - Fangbuch"_s); });
        EXPECT_EQ(afterClick(u"tbVor"_s), u"Handbuch - Inhalt"_s) << "after the upper question";
        clickKey(u"tbSchliessen"_s);
        EXPECT_FALSE(book.isVisible());
        the<Handbuch>().zeige(folder.filePath(u"fangbuch.html"_s));
        EXPECT_EQ(afterClick(u"tbInhalt"_s), u"Handbuch - Inhalt"_s) << "opened during the question";
    });
    EXPECT_EQ(afterClick(u"tbZurueck"_s), u"Handbuch - Fangbuch"_s) << "after both";
    unload<Handbuch>();
}
