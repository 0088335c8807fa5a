#include "platform/controls/file_dialog.h"
#include "platform/controls/look.h"
#include "platform/controls/message.h"
#include "platform/services/opener.h"
#include "platform/services/sound.h"
#include "platform/services/telephone.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

/// Nobody sits before a test: a box that no test expects fails it and is dismissed; no sound is
/// made, nobody is called and nothing opened.
class NobodyAtTheScreen : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        controls::Message::setScript([](const controls::MessageText& box) {
            ADD_FAILURE() << "Unexpected message: " << box.text.toStdString();
            return controls::escapeAnswer(box.buttons);
        });
        controls::FileDialog::setScript([](const controls::FileDialog::Request& asked) {
            ADD_FAILURE() << "Unexpected file dialog: " << asked.title.toStdString();
            return QString();
        });
        services::sound::setRecorder([](const QString&) {});
        services::telephone::setDialler([](const QString& dialled) {
            ADD_FAILURE() << "Unexpected call: " << dialled.toStdString();
            return true;
        });
        services::opener::setViewer([](const QString& path) {
            ADD_FAILURE() << "Unexpected document: " << path.toStdString();
            return true;
        });
    }

    void OnTestEnd(const testing::TestInfo& test) override
    {
        if (QApplication::activeModalWidget())
            ADD_FAILURE() << test.name() << " left a dialog open";
    }
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The screen on which every dialog must have its place.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TALOR_SOURCE_DIR "/tests/support/screen.json");
    QApplication application(argc, argv);
    controls::applyLook(application);
    testing::UnitTest::GetInstance()->listeners().Append(new NobodyAtTheScreen);
    return RUN_ALL_TESTS();
}
