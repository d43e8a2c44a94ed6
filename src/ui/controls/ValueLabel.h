#pragma once

#include <QLabel>

/// A label that shows a value; sunk a little, so that it reads as a field and not as a caption.
class ValueLabel : public QLabel {
    Q_OBJECT

public:
    explicit ValueLabel(const QString& name, QWidget* parent = nullptr);

    /// For a count or a sum: at the right, with room for nine digits.
    void setNumeric();

    QString Caption() const { return text(); }
    /// Setting what stands there already does nothing, so that it may be done while painting.
    void setCaption(const QString& caption);
};
