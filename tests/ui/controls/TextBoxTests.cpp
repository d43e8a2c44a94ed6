#include "MemoBox.h"
#include "TextBox.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

int digitsOnly(int code) { return (code >= '0' && code <= '9') || code == 8 || code == 13 ? code : 0; }

class TextBoxTest : public ::testing::Test {
protected:
    TextBoxTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(box);
        column->addWidget(other);
        column->addWidget(memo);
        QObject::connect(box, &TextBox::KeyPress,
                         [this](int code) { log += u"p%1:%2 "_qs.arg(code).arg(box->text()); });
        QObject::connect(box, &TextBox::KeyDone,
                         [this](int code) { log += u"d%1:%2 "_qs.arg(code).arg(box->text()); });
        QObject::connect(box, &TextBox::GotFocus, [this] { focusLog += u"+box"_qs; });
        QObject::connect(box, &TextBox::LostFocus, [this] { focusLog += u"-box"_qs; });
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
    }

    QWidget window;
    TextBox* box = new TextBox(u"txtAnzahl"_qs);
    TextBox* other = new TextBox(u"txtGewicht"_qs);
    MemoBox* memo = new MemoBox(u"txtNotiz"_qs);
    QString log;
    QString focusLog;
};

TEST_F(TextBoxTest, AKeyIsToldThenFilteredThenItWorks) {
    box->setKeyFilter(digitsOnly);
    QTest::keyClicks(box, u"1x2"_qs);
    EXPECT_EQ(log, u"p49: d49:1 p120:1 d120:1 p50:1 d50:12 "_qs);
    log.clear();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(log, u"p8:12 d8:1 p13:1 d13:1 "_qs);
}

TEST_F(TextBoxTest, UmlautsSignsAndComposedCharactersAreCharacters) {
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, u"ä"_qs, Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_At, u"@"_qs, Qt::ControlModifier | Qt::AltModifier);
    QInputMethodEvent composed;
    composed.setCommitString(u"é1"_qs);
    QApplication::sendEvent(box, &composed);
    EXPECT_EQ(box->text(), u"ä@é1"_qs);
    box->setKeyFilter(digitsOnly);
    QApplication::sendEvent(box, &composed);
    EXPECT_EQ(box->text(), u"ä@é11"_qs) << "the filter holds for them, too";
}

// Each way of pasting and dropping, in turn. It replaces the whole text, or adds to it.
TEST_F(TextBoxTest, WhatIsPastedOrDroppedPassesTheFilter) {
    box->setKeyFilter(digitsOnly);
    box->setMaxLength(4);
    QApplication::clipboard()->setText(u"-1 OR 2=3\n"_qs);
    const auto pasted = [this](const std::function<void()>& way) {
        box->setText(u"7"_qs);
        box->selectAll();
        way();
        return box->text();
    };
    EXPECT_EQ(pasted([this] { QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); }), u"123"_qs);
    EXPECT_EQ(pasted([this] {
                  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
                  QApplication::sendEvent(box, &asked);
                  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                  for (QAction* entry : menu->actions())
                      if (entry->text().startsWith(QLineEdit::tr("&Paste"))) entry->trigger();
                  menu->close();
              }),
              u"123"_qs);
    QMimeData dragged;
    dragged.setText(u"a9b8"_qs);
    QDragEnterEvent enter({1000, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({1000, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    EXPECT_EQ(pasted([&] {
                  QApplication::sendEvent(box, &enter);
                  QApplication::sendEvent(box, &drop);
              }),
              u"798"_qs);
    box->setKeyFilter(digitsOnly, Refused::Admitted);
    EXPECT_EQ(pasted([this] { QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); }), u"-1 O"_qs);
    box->setText(u"-5"_qs);
    EXPECT_EQ(box->text(), u"-5"_qs) << "what a routine puts in is its own affair";
}

TEST_F(TextBoxTest, AMemoRefusesWhatGoesBeyondItsLimit) {
    memo->setLimit(6);
    QTest::keyClicks(memo, u"abc"_qs);
    QTest::keyClick(memo, Qt::Key_Return);
    QTest::keyClicks(memo, u"dx"_qs);
    EXPECT_EQ(memo->Text(), u"abc\r\nd"_qs) << "a line break is two characters";
    QTest::keyClick(memo, Qt::Key_Backspace);
    QTest::keyClick(memo, Qt::Key_Return);
    EXPECT_EQ(memo->Text(), u"abc\r\n"_qs) << "there is room for one character only";

    QApplication::clipboard()->setText(u"1\r\n23456789"_qs);
    memo->selectAll();
    memo->paste();
    EXPECT_EQ(memo->Text(), u"1\r\n234"_qs) << "what is replaced makes room";
    memo->setText(u"12345"_qs);
    memo->moveCursor(QTextCursor::End);
    QInputMethodEvent composed;
    composed.setCommitString(u"éé"_qs);
    QApplication::sendEvent(memo, &composed);
    EXPECT_EQ(memo->Text(), u"12345é"_qs);
}

} // namespace
