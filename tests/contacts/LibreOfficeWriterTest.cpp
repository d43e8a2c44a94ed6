#include "LibreOfficeWriter.h"
#include "Club.h"
#include "RecordedDialogue.h"
#include "modSerienbrief.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The LibreOffice adapter with an office that only records the file to open.
class LibreOfficeLetter : public ::testing::Test {
protected:
    LibreOfficeLetter() {
        QDir(club.folder.path()).mkdir(u"office"_s);
        QFile office(club.folder.filePath(u"office/soffice"_s));
        office.open(QIODevice::WriteOnly);
        office.write("#!/bin/sh\necho \"$*\" >\"${0%/*}/new\" && mv \"${0%/*}/new\" \"${0%/*}/opened\"\n");
        office.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        office.close();
        useRecordingOffice();
        officeProgram<WordProcessor> = &writer;
        modSerienbrief::ErzeugeSeriendatei();
        boxes.texts.clear();
    }
    ~LibreOfficeLetter() override {
        officeProgram<WordProcessor> = nullptr;
        qputenv("PATH", path);
    }

    void useRecordingOffice() {
        qputenv("PATH", QFile::encodeName(club.folder.filePath(u"office"_s)) + ":" + path);
    }
    QString nameOfOpened() {
        const QString opened = club.folder.filePath(u"office/opened"_s);
        QFile::remove(opened);
        modSerienbrief::StarteWordSerienbrief();
        for (int tries = 0; tries < 500 && !QFile::exists(opened); ++tries) QThread::msleep(10);
        QFile file(opened);
        return file.open(QIODevice::ReadOnly)
                   ? QFileInfo(QString::fromUtf8(file.readAll()).trimmed()).fileName()
                   : u"nothing"_s;
    }
    void place(const QString& name, const QByteArray& content) {
        QFile file(club.folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    const QByteArray path = qgetenv("PATH");
    Club club;
    RecordedDialogue boxes;
    LibreOfficeWriter writer;
};

TEST_F(LibreOfficeLetter, NeverOverwritesOneThatTheUserHasChanged) {
    EXPECT_EQ(nameOfOpened(), u"Serienbrief.odt"_s);
    EXPECT_EQ(nameOfOpened(), u"Serienbrief.odt"_s);
    place(u"SeqData/Serienbrief.odt"_s, "mein Brief");
    EXPECT_EQ(nameOfOpened(), u"Serienbrief 2.odt"_s);
    EXPECT_EQ(nameOfOpened(), u"Serienbrief 2.odt"_s);
    EXPECT_EQ(QFileInfo(club.folder.filePath(u"SeqData/Serienbrief.odt"_s)).size(), 10);
    EXPECT_TRUE(boxes.texts.isEmpty());
}

TEST_F(LibreOfficeLetter, TellsWhatKeepsItFromBeingMerged) {
    place(u"office/libfilelo.so"_s, "x");
    // An office without its word processor counts as missing.
    modSerienbrief::StarteWordSerienbrief();
    EXPECT_EQ(boxes.texts, QStringList{u"64 Uferwart: Es ist kein Word verfügbar !"_s});
    boxes.texts.clear();
    place(u"office/libswlo.so"_s, "x");
    EXPECT_EQ(nameOfOpened(), u"Serienbrief.odt"_s);
    ASSERT_EQ(boxes.texts.size(), 1);
    EXPECT_TRUE(boxes.texts[0].contains(u"libreoffice-base"_s));

    boxes.texts.clear();
    ASSERT_TRUE(QFile::remove(club.folder.filePath(u"SeqData/SERI.txt"_s)));
    modSerienbrief::StarteWordSerienbrief();
    ASSERT_EQ(boxes.texts.size(), 1);
    EXPECT_TRUE(boxes.texts[0].endsWith(u"Datei nicht gefunden"_s));
}

/// Merges a letter into one text file by a macro in a profile of its own.
class MergingOffice {
public:
    MergingOffice(QString program, const QString& profile)
        : m_program(std::move(program))
        , m_profile(u"-env:UserInstallation=file://"_s + profile) {
        run(u"--terminate_after_init"_s); // makes the profile
        const QString library = profile + u"/user/basic/Standard/"_s;
        const QByteArray names = " xmlns:%1=\"http://openoffice.org/2000/%1\" %1:name=\"";
        write(library + u"script.xlb"_s,
              "<library:library" + QByteArray(names).replace("%1", "library") +
                  "Standard\"><library:element library:name=\"Brief\"/></library:library>");
        write(library + u"Brief.xba"_s, "<script:module" + QByteArray(names).replace("%1", "script") +
                                            "Brief\" script:language=\"StarBasic\"><![CDATA[" + macro +
                                            "]]></script:module>");
    }

    /// The merged letters, or the office's error message.
    QString merged(const QString& letter, const QString& target) const {
        run(u"macro:///Standard.Brief.Main(file://%1,file://%2)"_s.arg(letter, target));
        QFile file(target + u"/brief0.txt"_s);
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).remove(QChar(0xfeff)).remove(u'\r');
    }

private:
    static constexpr const char* macro = R"(
Sub Main(letter, target)
    On Error Goto failed
    Dim hidden(0) As New com.sun.star.beans.PropertyValue
    hidden(0).Name = "Hidden"
    hidden(0).Value = True
    document = StarDesktop.loadComponentFromURL(letter, "_blank", 0, hidden())
    settings = document.createInstance("com.sun.star.document.Settings")
    merge = createUnoService("com.sun.star.text.MailMerge")
    merge.DocumentURL = letter
    merge.DataSourceName = settings.CurrentDatabaseDataSource
    merge.CommandType = settings.CurrentDatabaseCommandType
    merge.Command = settings.CurrentDatabaseCommand
    merge.OutputType = 2
    merge.OutputURL = target
    merge.FileNamePrefix = "brief"
    merge.SaveAsSingleFile = True
    merge.SaveFilter = "Text"
    merge.execute(Array())
    document.close(True)
failed:
    If Err <> 0 Then
        Open target & "/brief0.txt" For Output As #1
        Print #1, Error
        Close #1
    End If
    StarDesktop.terminate()
End Sub
)";

    void run(const QString& what) const {
        QProcess process;
        process.start(m_program, {m_profile, u"--headless"_s, u"--norestore"_s, what});
        if (!process.waitForFinished(25'000)) process.kill();
    }
    static void write(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QString m_program;
    QString m_profile;
};

/// The path of an office that can merge letters, empty if there is none.
QString mergingOffice() {
    const QString program = QStandardPaths::findExecutable(u"soffice"_s);
    const QDir parts = QFileInfo(QFileInfo(program).canonicalFilePath()).dir();
    return parts.exists(u"libswlo.so"_s) && parts.exists(u"libflatlo.so"_s) ? program : QString();
}

TEST_F(LibreOfficeLetter, IsMergedByTheOfficeWithTheContactsAsTheyAre) {
    qputenv("PATH", path);
    const QString program = mergingOffice();
    if (program.isEmpty()) GTEST_SKIP() << "needs the packages libreoffice-writer and libreoffice-base";
    useRecordingOffice();
    Recordset contacts = session().AktDatenbank.OpenRecordset(u"Kontakt"_s, dbOpenTable);
    const auto add = [&](const QStringList& texts) {
        contacts.AddNew();
        contacts.Collect(u"KategoNr"_s, 3);
        const QStringList fields = u"Firma Anrede Vorname Nachname Strasse PLZ Ort"_s.split(u' ');
        for (int i = 0; i < fields.size(); ++i) contacts.Collect(fields[i], texts[i]);
        contacts.Collect(u"GebDatum"_s, Date{});
        contacts.Update();
    };
    add(u"Angel \"Größe & Söhne\" <GmbH>|Frau|Änne|Weiß|Zur Mühle 1|01067|Köln"_s.split(u'|'));
    add(u"|Herr||Ohne|'Seestr.' €|00815|Zürich"_s.split(u'|'));
    Club::overview().appendRow({3, u"-"_s, u"Name"_s});
    modSerienbrief::ErzeugeSeriendatei();
    ASSERT_EQ(nameOfOpened(), u"Serienbrief.odt"_s);

    const MergingOffice office(program, club.folder.filePath(u"profil"_s));
    EXPECT_EQ(
        office.merged(club.folder.filePath(u"SeqData/Serienbrief.odt"_s), club.folder.path()).toStdString(),
        "An\nAngel \"Größe & Söhne\" <GmbH>\nFrau Änne Weiß\nZur Mühle 1\n\n01067 Köln\n"
        "An\n\nHerr  Ohne\n'Seestr.' €\n\n00815 Zürich\n");
}

} // namespace
