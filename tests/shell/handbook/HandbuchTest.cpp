#include "modHandbuch.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir handbook(QStringLiteral(UW_HANDBOOK));

QString contentOf(const QString& page) {
    QFile file(handbook.filePath(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The pages, pictures and style files that a page names, with the mark after "#" if there is one.
QStringList targetsOf(const QString& page) {
    static const QRegularExpression target(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
    QStringList targets;
    for (const auto& match : target.globalMatch(contentOf(page))) {
        const QString named = match.captured(1);
        targets.append(named.startsWith(u'#') ? page + named : named);
    }
    return targets;
}

bool leadsSomewhere(const QString& target) {
    const QString file = target.section(u'#', 0, 0);
    const QString mark = target.section(u'#', 1);
    return handbook.exists(file) && (mark.isEmpty() || contentOf(file).contains(u"id=\"%1\""_s.arg(mark)));
}

} // namespace

TEST(Handbook, HasAPageForStartFrameAndPreview) {
    for (const QString& screen : {u"Eroef"_s, u"Main"_s, u"Vorschau"_s})
        EXPECT_TRUE(handbook.exists(modHandbuch::SeiteFuer(screen) + u".html"_s)) << screen.toStdString();
    EXPECT_TRUE(handbook.exists(u"hilfe.html"_s));
}

TEST(Handbook, LeadsNowhereIntoTheVoidAndLeavesNothingUnreached) {
    QStringList unreached = handbook.entryList({u"*.html"_s}) + handbook.entryList({u"*.css"_s});
    for (const QString& picture : QDir(handbook.filePath(u"bilder"_s)).entryList(QDir::Files))
        unreached.append(u"bilder/"_s + picture);
    const QStringList pages = handbook.entryList({u"*.html"_s});
    ASSERT_FALSE(pages.isEmpty());
    for (const QString& page : pages) {
        for (const QString& target : targetsOf(page)) {
            EXPECT_TRUE(leadsSomewhere(target)) << page.toStdString() << ": " << target.toStdString();
            unreached.removeAll(target.section(u'#', 0, 0));
        }
    }
    EXPECT_TRUE(unreached.isEmpty()) << unreached.join(u' ').toStdString();
}
