#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

/// A progress bar that may be set for each of a million rows. Repaints at once, since the loops that use it
/// do not return to the event loop. Repaints only when a further hundredth is reached and no more often than
/// an eye can follow: otherwise the bar would cost more than a short list itself.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressBar(QStringView name, QWidget* parent = nullptr);

    void setMax(qint64 maximum); ///< at least 1; resets the value to 0
    void setProgress(qint64 value);
    qint64 progress() const { return m_value; }

private:
    qint64 m_max = 1;
    qint64 m_value = 0;
    int m_reached = 0; ///< in hundredths; the painted bar may be behind
    QElapsedTimer m_sincePainted;
};
