#include "MemoBox.h"
#include "TextBox.h"
#include "Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int digitsOnly(int code) { return (code >= '0' && code <= '9') || code == 8 || code == 13 ? code : 0; }

class TextBoxTest : public ::testing::Test {
protected:
    TextBoxTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(box);
        column->addWidget(other);
        column->addWidget(memo);
        QObject::connect(box, &TextBox::KeyDone,
                         [this](int code) { log += u"d%1:%2 "_s.arg(code).arg(box->text()); });
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
    }

    QWidget window;
    TextBox* box = new TextBox(u"txtAnzahl"_s);
    TextBox* other = new TextBox(u"txtGewicht"_s);
    MemoBox* memo = new MemoBox(u"txtNotiz"_s, nullptr, 6);
    QString log;
};

TEST_F(TextBoxTest, AKeyIsFilteredThenItWorksThenItIsTold) {
    box->setKeyFilter(digitsOnly);
    QTest::keyClicks(box, u"1x2"_s);
    EXPECT_EQ(log, u"d49:1 d120:1 d50:12 "_s);
    log.clear();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(log, u"d8:1 d13:1 "_s);
}

TEST_F(TextBoxTest, UmlautsSignsAndComposedCharactersAreCharacters) {
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, u"ä"_s, Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_At, u"@"_s, Qt::ControlModifier | Qt::AltModifier);
    QInputMethodEvent composed;
    composed.setCommitString(u"é1"_s);
    QApplication::sendEvent(box, &composed);
    EXPECT_EQ(box->text(), u"ä@é1"_s);
    box->setKeyFilter(digitsOnly);
    QApplication::sendEvent(box, &composed);
    EXPECT_EQ(box->text(), u"ä@é11"_s) << "the filter holds for them, too";
}

// Each way of pasting and dropping, in turn. It replaces the whole text, or adds to it.
TEST_F(TextBoxTest, WhatIsPastedOrDroppedPassesTheFilter) {
    box->setKeyFilter(digitsOnly);
    box->setMaxLength(4);
    QApplication::clipboard()->setText(u"-1 OR 2=3\n"_s);
    const auto pasted = [this](const std::function<void()>& way) {
        box->setText(u"7"_s);
        box->selectAll();
        way();
        return box->text();
    };
    EXPECT_EQ(pasted([this] { QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); }), u"123"_s);
    EXPECT_EQ(pasted([this] {
                  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
                  QApplication::sendEvent(box, &asked);
                  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                  for (QAction* entry : menu->actions())
                      if (entry->text().startsWith(QLineEdit::tr("&Paste"))) entry->trigger();
                  menu->close();
              }),
              u"123"_s);
    QMimeData dragged;
    dragged.setText(u"a9b8"_s);
    QDragEnterEvent enter({1000, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({1000, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    EXPECT_EQ(pasted([&] {
                  QApplication::sendEvent(box, &enter);
                  QApplication::sendEvent(box, &drop);
              }),
              u"798"_s);
    box->setKeyFilter(digitsOnly, Refused::Admitted);
    EXPECT_EQ(pasted([this] { QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); }), u"-1 O"_s);
    box->setText(u"-5"_s);
    EXPECT_EQ(box->text(), u"-5"_s) << "what a routine puts in is its own affair";
}

TEST_F(TextBoxTest, ADayThatDoesNotExistIsMarkedOnceItsBoxIsLeft) {
    box->setHoldsDate();
    box->setFocus();
    QTest::keyClicks(box, u"31.2.2026"_s);
    EXPECT_FALSE(Theme::isFaulty(box));
    other->setFocus();
    EXPECT_TRUE(Theme::isFaulty(box));
    box->setText(u"28.2.2026"_s);
    EXPECT_FALSE(Theme::isFaulty(box));
}

TEST_F(TextBoxTest, AMemoRefusesWhatGoesBeyondItsLimit) {
    QTest::keyClicks(memo, u"abc"_s);
    QTest::keyClick(memo, Qt::Key_Return);
    QTest::keyClicks(memo, u"dx"_s);
    EXPECT_EQ(memo->Text(), u"abc\r\nd"_s) << "a line break is two characters";
    QTest::keyClick(memo, Qt::Key_Backspace);
    QTest::keyClick(memo, Qt::Key_Return);
    EXPECT_EQ(memo->Text(), u"abc\r\n"_s) << "there is room for one character only";

    QApplication::clipboard()->setText(u"1\r\n23456789"_s);
    memo->selectAll();
    memo->paste();
    EXPECT_EQ(memo->Text(), u"1\r\n234"_s) << "what is replaced makes room";
    memo->setText(u"12345"_s);
    memo->moveCursor(QTextCursor::End);
    QInputMethodEvent composed;
    composed.setCommitString(u"éé"_s);
    QApplication::sendEvent(memo, &composed);
    EXPECT_EQ(memo->Text(), u"12345é"_s);
}

} // namespace
