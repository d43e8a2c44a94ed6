#pragma once

#include <QLabel>

/// The heading of a screen, in capitals, in Comic Sans MS or its substitute.
class Heading : public QLabel {
    Q_OBJECT

public:
    explicit Heading(QStringView text, QWidget* parent = nullptr);
};
