#pragma once

#include <QProgressBar>

/// A progress bar that may be set for each of a million rows: it repaints only when a further hundredth is
/// reached, and then at once, since the loops that use it do not yield.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressBar(const QString& name, QWidget* parent = nullptr);

    void setMax(qint64 maximum); ///< at least 1; the value goes back to 0
    void setProgress(qint64 value);
    qint64 progress() const { return m_value; }

private:
    qint64 m_max = 1;
    qint64 m_value = 0;
};
