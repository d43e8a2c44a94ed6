#include "LibreOfficeCalc.h"

#include "RuntimeError.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

class Calc final : public Spreadsheet {
public:
    explicit Calc(QString program)
        : m_program(std::move(program)) {}

    // Calc is always visible. It can't be told column widths from outside: its import chooses them.
    void setVisible(bool) override {}
    void autoFitColumns(const QString&) override {}

    void openWorkbook(const QString& fileName) override {
        if (!QProcess::startDetached(m_program, LibreOfficeCalc::arguments(fileName)))
            throw runtimeError(RuntimeError::programNotReached);
    }

private:
    QString m_program;
};

} // namespace

std::unique_ptr<Spreadsheet> LibreOfficeCalc::start() {
    const QString program = QStandardPaths::findExecutable(u"soffice"_s);
    if (program.isEmpty()) throw runtimeError(RuntimeError::programNotReached);
    return std::make_unique<Calc>(program);
}

QStringList LibreOfficeCalc::arguments(const QString& fileName) {
    return {u"--calc"_s, u"--infilter=Text - txt - csv (StarCalc):59,,1,1,,1031,true,true,,,,,false"_s,
            fileName};
}
