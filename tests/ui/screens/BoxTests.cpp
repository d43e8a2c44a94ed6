#include "Layout.h"
#include "ProgressBar.h"
#include "QtMessageBoxes.h"
#include "Toolbar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Seen {
    QString text;
    QString buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
};

QMessageBox* boxInFront() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

// Looks at the box that opens and presses one of its buttons.
Seen answer(const QString& text, int style, int place, MsgBoxResult& result) {
    Seen seen;
    QTimer::singleShot(0, [&] {
        QMessageBox* box = boxInFront();
        ASSERT_TRUE(box);
        seen = {box->text(), QString(), box->icon(), box->textFormat()};
        for (QAbstractButton* button : box->buttons()) seen.buttons += button->text().remove(u'&') + u' ';
        EXPECT_TRUE(qobject_cast<QPushButton*>(box->buttons().first())->isDefault());
        box->buttons().at(place)->click();
    });
    result = QtMessageBoxes().show(text, style, u"Titel"_s);
    return seen;
}

void hold(Qt::Key key) {
    QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(boxInFront()->defaultButton(), &repeated);
}

bool isOpen() { return boxInFront() && boxInFront()->isVisible(); }

TEST(QtMessageBoxesTest, BoxesAreGermanPlainAndBreakTheirLinesOnce) {
    MsgBoxResult result = vbNo;
    Seen seen = answer(u"eins\n\rzwei\r\ndrei <b>\n\n\rvier"_s, vbCritical, 0, result);
    EXPECT_EQ(seen.text, u"eins\nzwei\ndrei <b>\n\nvier"_s);
    EXPECT_EQ(seen.buttons, u"OK "_s);
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
    EXPECT_EQ(seen.format, Qt::PlainText);
    EXPECT_EQ(result, vbOK);

    seen = answer(u"?"_s, vbYesNo, 0, result);
    EXPECT_EQ(seen.buttons, u"Ja Nein "_s);
    EXPECT_EQ(seen.icon, QMessageBox::NoIcon);
    EXPECT_EQ(result, vbYes);
    seen = answer(u"?"_s, vbYesNo | vbExclamation, 1, result);
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
    EXPECT_EQ(result, vbNo);
    answer(u"!"_s, vbInformation, 0, result);
    EXPECT_EQ(result, vbOK);
}

TEST(QtMessageBoxesTest, AKeyCountsOnlyWhenPressedSomeTimeAfterTheBoxCameUp) {
    constexpr int firstMoments = 310;
    QStringList log;
    const auto note = [&log](const QString& when) {
        log.append(when + (isOpen() ? u":open"_s : u":gone"_s));
    };
    QTimer::singleShot(0, [&] {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_N})
            QTest::keyClick(boxInFront()->defaultButton(), key);
        QTest::keyClick(boxInFront()->defaultButton(), Qt::Key_J, Qt::AltModifier);
        note(u"atOnce"_s);
        QTimer::singleShot(firstMoments, Qt::PreciseTimer, [&] {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_N}) hold(key);
            note(u"held"_s);
            QTest::keyClick(boxInFront()->defaultButton(), Qt::Key_Escape);
            note(u"pressed"_s);
            if (isOpen()) boxInFront()->reject();
        });
    });
    EXPECT_EQ(QtMessageBoxes().show(u"?"_s, vbYesNo, u"Titel"_s), vbNo);
    EXPECT_EQ(log.join(u' '), u"atOnce:open held:open pressed:gone"_s);
}

TEST(ProgressBarTest, ItShowsHundredthsOfAnyNumberOfRows) {
    ProgressBar bar(u"pb"_s);
    int changes = 0;
    QObject::connect(&bar, &QProgressBar::valueChanged, [&] { ++changes; });
    bar.setMax(1'000'000);
    for (qint64 row = 1; row <= 1'000'000; ++row) bar.setProgress(row);
    EXPECT_EQ(bar.value(), 100);
    EXPECT_LE(changes, 100);
    bar.setMax(0);
    EXPECT_EQ(bar.value(), 0);
    bar.setProgress(5);
    EXPECT_EQ(bar.progress(), 1) << "there is at least one row";
}

} // namespace
