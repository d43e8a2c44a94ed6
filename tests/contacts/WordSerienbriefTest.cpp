#include "Club.h"
#include "RecordedDialogue.h"
#include "RuntimeError.h"
#include "WordProcessor.h"
#include "modSerienbrief.h"

#include <gtest/gtest.h>

namespace {

/// A word processor that records the calls.
class RecordingProgram final : public OfficeProgram<WordProcessor> {
public:
    QStringList steps;
    MailMergeSource source;

    std::unique_ptr<WordProcessor> running() override {
        steps += u"running"_qs;
        throw RuntimeError{429, {}};
    }
    std::unique_ptr<WordProcessor> start() override {
        steps += u"start"_qs;
        return std::make_unique<Word>(*this);
    }

private:
    class Word final : public WordProcessor {
    public:
        explicit Word(RecordingProgram& program)
            : m_program(program) {}
        ~Word() override { add(u"let go"_qs); }
        void setVisible(bool on) override { add(on ? u"visible"_qs : u"hidden"_qs); }
        void addDocument() override { add(u"document"_qs); }
        void setMainDocumentType(int type) override { add(u"type %1"_qs.arg(type)); }
        void openDataSource(const MailMergeSource& source) override {
            add(u"source"_qs);
            m_program.source = source;
        }
        void editMainDocument() override { add(u"edit"_qs); }
        void typeText(const QString& text) override { add(u"text "_qs + text); }
        void typeParagraph() override { add(u"paragraph"_qs); }
        void insertField(const QString& name) override { add(u"field "_qs + name); }
        void release() override { add(u"release"_qs); }

    private:
        void add(const QString& what) { m_program.steps += what; }
        RecordingProgram& m_program;
    };
};

class WordSerienbrief : public ::testing::Test {
protected:
    WordSerienbrief() { setOfficeProgram<WordProcessor>(&program); }
    ~WordSerienbrief() override { setOfficeProgram<WordProcessor>(nullptr); }

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
              u"field Strasse\nparagraph\nparagraph\nfield PLZ\ntext  \nfield Ort\nrelease\nlet go"_qs);
    EXPECT_EQ(program.source.name, club.folder.filePath(u"SeqData/SERI.txt"_qs));
    EXPECT_TRUE(program.source.linkToSource);
    EXPECT_EQ(boxes.texts.size(), 2);
}

} // namespace
