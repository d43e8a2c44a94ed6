#pragma once

#include <QLabel>

/// A text in the colour of headings. Follows a change of the theme.
class HeadingText : public QLabel {
    Q_OBJECT

public:
    explicit HeadingText(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeInk();
};

/// The heading of a screen, in capitals, in Comic Sans MS or its substitute.
class Heading : public HeadingText {
    Q_OBJECT

public:
    explicit Heading(QStringView text, QWidget* parent = nullptr);
};
