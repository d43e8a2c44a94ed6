#pragma once

#include <QLabel>

/// A label that shows a value. Drawn sunken, so that it looks like a field and not like a caption.
class ValueLabel : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(QStringView name, QWidget* parent = nullptr);

    /// For a count or a sum: at the right, with room for nine digits.
    void setNumeric();
};
