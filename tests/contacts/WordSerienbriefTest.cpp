#include "Club.h"
#include "RecordedDialogue.h"
#include "RuntimeError.h"
#include "WordProcessor.h"
#include "modSerienbrief.h"

#include <gtest/gtest.h>

namespace {

/// A word processor that only writes down what it is asked for.
class RecordingProgram final : public OfficeProgram<WordProcessor> {
public:
    QStringList steps;
    MailMergeSource source;
    int errorOfRunning = 429;
    int errorOfStart = 0;
    int errorOfDocument = 0;

    std::unique_ptr<WordProcessor> running() override { return reached(u"running"_qs, errorOfRunning); }
    std::unique_ptr<WordProcessor> start() override { return reached(u"start"_qs, errorOfStart); }

private:
    class Word final : public WordProcessor {
    public:
        explicit Word(RecordingProgram& program)
            : m_program(program) {}
        ~Word() override { add(u"let go"_qs); }
        void setVisible(bool on) override { add(on ? u"visible"_qs : u"hidden"_qs); }
        void addDocument() override { m_program.step(u"document"_qs, m_program.errorOfDocument); }
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
        void add(const QString& what) { m_program.step(what, 0); }
        RecordingProgram& m_program;
    };

    void step(const QString& what, int error) {
        steps += what;
        if (error != 0) throw RuntimeError{error, {}};
    }
    std::unique_ptr<WordProcessor> reached(const QString& what, int error) {
        step(what, error);
        return std::make_unique<Word>(*this);
    }
};

const QString noWord = u"64 Uferwart: Es ist kein Word verfügbar !"_qs;

class WordSerienbrief : public ::testing::Test {
protected:
    WordSerienbrief() { setOfficeProgram<WordProcessor>(&program); }
    ~WordSerienbrief() override { setOfficeProgram<WordProcessor>(nullptr); }

    QStringList stepsOfLetter() {
        program.steps.clear();
        modSerienbrief::StarteWordSerienbrief();
        return program.steps;
    }

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

TEST_F(WordSerienbrief, StartsAWordProcessorOnlyWhereNoneRuns) {
    program.errorOfRunning = 0;
    EXPECT_EQ(stepsOfLetter().mid(0, 2), (QStringList{u"running"_qs, u"visible"_qs}));
    EXPECT_TRUE(boxes.texts.isEmpty());

    program.errorOfRunning = 70;
    EXPECT_EQ(stepsOfLetter(), QStringList{u"running"_qs});
    program.errorOfRunning = program.errorOfStart = 429;
    EXPECT_EQ(stepsOfLetter(), (QStringList{u"running"_qs, u"start"_qs}));
    program.errorOfStart = 0;
    program.errorOfDocument = 462;
    EXPECT_EQ(stepsOfLetter().last(), u"let go"_qs);
    EXPECT_EQ(boxes.texts, (QStringList{noWord, noWord, noWord}));
}

} // namespace
