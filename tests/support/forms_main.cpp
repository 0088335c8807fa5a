#include "platform/controls/look.h"
#include "platform/controls/message.h"
#include "platform/services/sound.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

/// Nobody sits before a test: a box that no test expects fails it and is dismissed, and no sound is made.
class NobodyAtTheScreen : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        controls::Message::setScript([](const controls::MessageText& box) {
            ADD_FAILURE() << "Unexpected message: " << box.text.toStdString();
            return controls::escapeAnswer(box.buttons);
        });
        services::sound::setRecorder([](const QString&) {});
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
    QApplication application(argc, argv);
    controls::applyLook(application);
    testing::UnitTest::GetInstance()->listeners().Append(new NobodyAtTheScreen);
    return RUN_ALL_TESTS();
}
