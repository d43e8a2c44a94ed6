#include "PlayedProgram.h"

#include "CommandFailure.h"
#include "FullDisk.h"
#include "Hand.h"
#include "Program.h"
#include "ProgramFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <utility>

using namespace Qt::StringLiterals;

PlayedProgram::PlayedProgram(QString folder, QString pictures)
    : m_folder(std::move(folder))
    , m_pictures(std::move(pictures))
    , m_made(QFileInfo::exists(m_folder + u"/uw01.mdb"_s)) {
    setMessageBoxes(&m_boxes);
    setPrintDialogs(&m_dialogs);
}

PlayedProgram::~PlayedProgram() {
    m_program.reset();
    setPrintDialogs(nullptr);
    setMessageBoxes(nullptr);
}

void PlayedProgram::requireNoFolder() const {
    if (m_made) throw CommandFailure{u"the program folder has been made already"_s};
}

void PlayedProgram::setFishingYear(int year) {
    requireNoFolder();
    m_year = year;
}

void PlayedProgram::wantDemoClub() {
    requireNoFolder();
    m_demo = true;
}

const QString& PlayedProgram::folder() {
    if (m_made) return m_folder;
    makeProgramFolder(m_folder, m_year ? m_year : m_clock.day().year(), m_demo);
    QFile::link(QStringLiteral(UW_HANDBOOK), m_folder + u"/Handbuch"_s);
    m_made = true;
    return m_folder;
}

QString PlayedProgram::outputPath(const QString& name) const {
    return QDir(m_pictures).absoluteFilePath(name);
}

DatabaseFile& PlayedProgram::file() {
    if (!m_file) m_file = std::make_unique<DatabaseFile>(folder() + u"/uw01.mdb"_s);
    return *m_file;
}

void PlayedProgram::runShell(const QString& command) {
    file().close();
    QProcess shell;
    shell.setWorkingDirectory(folder());
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(u"/bin/sh"_s, {u"-c"_s, command});
    constexpr int forever = -1;
    shell.waitForFinished(forever);
    if (shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0) return;
    throw CommandFailure{u"the shell gave %1: %2"_s.arg(shell.exitCode())
                             .arg(QString::fromLocal8Bit(shell.readAll()).trimmed())};
}

void PlayedProgram::start() {
    if (isRunning()) throw CommandFailure{u"the program is running already"_s};
    m_program.reset();
    m_program = std::make_unique<Program>(folder());
    countCommits();
    m_program->start();
    Hand::settle();
}

bool PlayedProgram::isRunning() const { return m_program && m_program->isRunning(); }

void PlayedProgram::requireRunning() const {
    if (!m_program) throw CommandFailure{u"the program has not been started"_s};
    if (!m_program->isRunning()) throw CommandFailure{u"the program has ended"_s};
}

void PlayedProgram::end() {
    if (isRunning()) m_program->finishUnseen();
}
