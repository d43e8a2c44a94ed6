#pragma once

#include <QVector>
#include <QWidget>

class QHBoxLayout;
class QLabel;

/// The status bar of the frame: panels numbered from 1.
class StatusBar : public QWidget {
    Q_OBJECT

public:
    explicit StatusBar(QStringView name, QWidget* parent = nullptr);

    /// Adds a panel at the right; `stretch` lets it take the remaining space.
    QLabel* addPanel(const QString& text, const QString& tip, bool stretch = false);
    /// Adds a panel that shows the clock in this format (see QDateTime::toString).
    void addClock(const QString& format, const QString& tip);
    QString panelText(int number) const;
    void setPanelText(int number, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* m_row;
    QVector<QLabel*> m_panels;
};
