#pragma once

#include <QLabel>

/// A text in the ink of headings. Follows the theme when that changes.
class HeadingText : public QLabel {
    Q_OBJECT

public:
    explicit HeadingText(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeInk();
};

/// The heading of a screen, in capitals, in the font Comic Sans MS or what stands in for it.
class Heading : public HeadingText {
    Q_OBJECT

public:
    explicit Heading(const QString& text, QWidget* parent = nullptr);
};
