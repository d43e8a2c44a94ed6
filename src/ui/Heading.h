#pragma once

#include <QLabel>

/// The heading of a screen, in capitals, in the font Comic Sans MS or what stands in for it.
class Heading : public QLabel {
    Q_OBJECT

public:
    explicit Heading(const QString& text, QWidget* parent = nullptr);
};
