#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Outcome {
    int code = -1;
    QString complaint;
};

Outcome uferwartNeu(const QStringList& words) {
    QProcess process;
    process.start(QStringLiteral(UFERWART_NEU), words);
    process.waitForFinished();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(UferwartNeu, TellsWhyItMadeNoFolder) {
    QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("Fischerhütte Süd"));
    EXPECT_EQ(uferwartNeu({folder, QStringLiteral("--jahr"), QStringLiteral("2025")}).code, 0);
    EXPECT_TRUE(QFile::exists(folder + QStringLiteral("/uw01.mdb")));
    const Outcome second = uferwartNeu({folder});
    EXPECT_EQ(second.code, 1);
    EXPECT_TRUE(second.complaint.contains(QStringLiteral("uw01.mdb"))) << second.complaint.toStdString();
}

TEST(UferwartNeu, AnswersWordsThatMakeNoOrderWithTheUsage) {
    QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("neu"));
    const QStringList wrong[] = {{},
                                 {QString()},
                                 {folder, folder},
                                 {folder, QStringLiteral("--jahr")},
                                 {folder, QStringLiteral("--jahr"), QStringLiteral("bald")},
                                 {folder, QStringLiteral("--jahr"), QStringLiteral("99999")},
                                 {folder, QStringLiteral("--alles")}};
    for (const QStringList& words : wrong) {
        const Outcome outcome = uferwartNeu(words);
        EXPECT_EQ(outcome.code, 2) << words.join(u' ').toStdString();
        EXPECT_TRUE(outcome.complaint.startsWith(QStringLiteral("usage"))) << words.join(u' ').toStdString();
        EXPECT_FALSE(QDir(folder).exists());
    }
}
