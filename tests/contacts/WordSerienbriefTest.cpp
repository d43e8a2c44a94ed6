#include "Club.h"
#include "RecordedDialogue.h"
#include "RuntimeError.h"
#include "WordProcessor.h"
#include "modSerienbrief.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A word processor that records the calls.
class RecordingProgram final : public OfficeProgram<WordProcessor> {
public:
    QStringList steps;
    MailMergeSource source;

    std::unique_ptr<WordProcessor> running() override {
        steps += u"running"_s;
        throw RuntimeError{429, {}};
    }
    std::unique_ptr<WordProcessor> start() override {
        steps += u"start"_s;
        return std::make_unique<Word>(*this);
    }

private:
    class Word final : public WordProcessor {
    public:
        explicit Word(RecordingProgram& program)
            : m_program(program) {}
        ~Word() override { add(u"let go"_s); }
        void setVisible(bool on) override { add(on ? u"visible"_s : u"hidden"_s); }
        void addDocument() override { add(u"document"_s); }
        void setMainDocumentType(int type) override { add(u"type %1"_s.arg(type)); }
        void openDataSource(const MailMergeSource& source) override {
            add(u"source"_s);
            m_program.source = source;
        }
        void editMainDocument() override { add(u"edit"_s); }
        void typeText(const QString& text) override { add(u"text "_s + text); }
        void typeParagraph() override { add(u"paragraph"_s); }
        void insertField(const QString& name) override { add(u"field "_s + name); }
        void release() override { add(u"release"_s); }

    private:
        void add(const QString& what) { m_program.steps += what; }
        RecordingProgram& m_program;
    };
};

class WordSerienbrief : public ::testing::Test {
protected:
    WordSerienbrief() { officeProgram<WordProcessor> = &program; }
    ~WordSerienbrief() override { officeProgram<WordProcessor> = nullptr; }

    Club club;
    RecordedDialogue boxes;
    RecordingProgram program;
};

TEST_F(WordSerienbrief, IsTypedStepByStep) {
    boxes.answer = vbYes;
    modSerienbrief::ErzeugeSeriendatei();
    EXPECT_EQ(program.steps.join(u'\n'),
              u"running\nstart\nvisible\ndocument\ntype 0\nsource\nedit\ntext An\nparagraph\nfield Firma\n"
              u"paragraph\nfield Anrede\ntext  \nfield Vorname\ntext  \nfield Nachname\nparagraph\n"
              u"field Strasse\nparagraph\nparagraph\nfield PLZ\ntext  \nfield Ort\nrelease\nlet go"_s);
    EXPECT_EQ(program.source.name, club.folder.filePath(u"SeqData/SERI.txt"_s));
    EXPECT_TRUE(program.source.linkToSource);
    EXPECT_EQ(boxes.texts.size(), 2);
}

} // namespace
