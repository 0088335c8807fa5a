#include "platform/services/opener.h"
#include "platform/services/printers.h"
#include "platform/services/single_instance.h"
#include "platform/services/sound.h"
#include "platform/services/telephone.h"
#include "tests/support/print.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(Telephone, DialsDigitsAndWhateverStandsFirst)
{
    const struct
    {
        QString typed;
        QString dialled;
    } cases[] = {
        {u" 041 33-21.07 "_s, u"041332107"_s},
        {u"+213 (0)41 33"_s, u"+21304133"_s},
        {u"(041)33+21"_s, u"(0413321"_s},
        {u"1 7"_s, u"1 7"_s}, // three characters and less go as they are
        {u"a1b2"_s, u"a12"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(services::telephone::dialable(c.typed), c.dialled);
}

TEST(Telephone, SaysWhetherTheCallWentThrough)
{
    QStringList dialled;
    const auto former = services::telephone::setDialler([&](const QString& number) {
        dialled.append(number);
        return dialled.size() == 1;
    });
    EXPECT_TRUE(services::telephone::call(u"041 33 21 07"_s));
    EXPECT_FALSE(services::telephone::call(u"17"_s));
    EXPECT_EQ(dialled, (QStringList{u"041332107"_s, u"17"_s}));
    services::telephone::setDialler(former);
}

TEST(Sound, AnAbsentOrForeignFileIsPassedOver)
{
    const auto former = services::sound::setRecorder({});
    QTemporaryDir folder;
    const QString foreign = folder.filePath(u"caisse.wav"_s);
    QFile file(foreign);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no sound at all");
    file.close();
    QElapsedTimer elapsed;
    elapsed.start();
    services::sound::play(folder.filePath(u"absent.wav"_s));
    services::sound::play(foreign);
    EXPECT_LT(elapsed.elapsed(), 4000);
    services::sound::setRecorder(former);
}

TEST(Printers, TheProgramsOwnWriterAlwaysCounts)
{
    EXPECT_TRUE(services::printers::available());
    EXPECT_FALSE(services::printers::current().isEmpty());
    services::printers::setNothingPrints(true);
    EXPECT_FALSE(services::printers::available());
    EXPECT_EQ(services::printers::current(), u""_s);
    services::printers::setNothingPrints(false);
}

TEST(SingleInstance, OneAloneHoldsAFolder)
{
    QTemporaryDir folder;
    {
        const services::SingleInstance first(folder.path());
        EXPECT_TRUE(first.isAlone());
        EXPECT_FALSE(services::SingleInstance(folder.path()).isAlone());
    }
    EXPECT_TRUE(services::SingleInstance(folder.path()).isAlone()) << "the place is free again";
    EXPECT_TRUE(services::SingleInstance(u"/no/such/folder"_s).isAlone()) << "nobody is kept out for want of a lock";
}

TEST(SingleInstance, ThePlaceOfADeadProcessIsTaken)
{
    QTemporaryDir folder;
    const QByteArray lock = QFile::encodeName(folder.filePath(u"TALOR.lock"_s));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // Dies with the lock in hand.
        new services::SingleInstance(QFile::decodeName(lock).chopped(11));
        _exit(QFile::exists(QFile::decodeName(lock)) ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(WEXITSTATUS(status), 0) << "the child left no lock";
    ASSERT_TRUE(QFile::exists(QFile::decodeName(lock)));
    EXPECT_TRUE(services::SingleInstance(folder.path()).isAlone());
}
