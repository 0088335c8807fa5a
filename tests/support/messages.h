#pragma once

#include "platform/controls/file_dialog.h"
#include "platform/controls/message.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

/// One box that a test expects: its text, and where they matter its title and the answer. A box with several buttons
/// needs an answer.
struct ExpectedMessage
{
    ExpectedMessage(QString expected)
        : text(std::move(expected))
    {}
    ExpectedMessage(QString expected, controls::Answer given)
        : text(std::move(expected))
        , answer(given)
    {}
    ExpectedMessage(QString expected, QString expectedTitle)
        : text(std::move(expected))
        , title(std::move(expectedTitle))
    {}
    ExpectedMessage(QString expected, QString expectedTitle, controls::Answer given)
        : text(std::move(expected))
        , title(std::move(expectedTitle))
        , answer(given)
    {}

    QString text;
    std::optional<QString> title;
    std::optional<controls::Answer> answer;
};

/// The boxes that must come while it lives, in this order, and no other. A box that comes unexpected, or in another
/// text, fails the test, and so does one that has not come by the end.
///
///     ExpectMessages messages{{u"Confirmer supression de ligne N°  1"_s, u"Confirmation"_s, Answer::Yes}};
class ExpectMessages
{
public:
    ExpectMessages(std::initializer_list<ExpectedMessage> expected)
        : m_expected(expected)
        , m_former(controls::Message::setScript([this](const controls::MessageText& box) { return answer(box); }))
    {}

    ~ExpectMessages()
    {
        verify();
        controls::Message::setScript(m_former);
    }

    ExpectMessages(const ExpectMessages&) = delete;
    ExpectMessages& operator=(const ExpectMessages&) = delete;

    /// That all have come; for a test that goes on after them.
    void verify()
    {
        for (; m_next < m_expected.size(); ++m_next)
            ADD_FAILURE() << "This message never came: " << m_expected[m_next].text.toStdString();
    }

    /// All boxes as they came, for their icons and titles.
    const QList<controls::MessageText>& shown() const { return m_shown; }

private:
    controls::Answer answer(const controls::MessageText& box)
    {
        m_shown.append(box);
        const controls::Answer none = controls::escapeAnswer(box.buttons);
        if (m_next >= m_expected.size()) {
            ADD_FAILURE() << "Unexpected message: " << box.text.toStdString();
            return none;
        }
        const ExpectedMessage& expected = m_expected[m_next++];
        EXPECT_EQ(box.text, expected.text);
        EXPECT_EQ(box.title, expected.title.value_or(box.title)) << "Title of the message " << box.text.toStdString();
        if (expected.answer && !controls::canAnswer(box.buttons, *expected.answer))
            ADD_FAILURE() << "The box has no such button: " << box.text.toStdString();
        if (!expected.answer && box.buttons != controls::Buttons::Ok)
            ADD_FAILURE() << "The question needs an answer: " << box.text.toStdString();
        return expected.answer.value_or(none);
    }

    QList<ExpectedMessage> m_expected;
    qsizetype m_next = 0;
    QList<controls::MessageText> m_shown;
    controls::Message::Script m_former;
};

/// The answers of the file dialogs that must come while it lives, in this order, and no other. An empty path is a
/// dialog given up.
class ExpectFiles
{
public:
    ExpectFiles(std::initializer_list<QString> paths)
        : m_paths(paths)
        , m_former(controls::FileDialog::setScript([this](const auto& request) { return answer(request); }))
    {}

    ~ExpectFiles()
    {
        for (const QString& path : std::as_const(m_paths))
            ADD_FAILURE() << "This file was never asked for: " << path.toStdString();
        controls::FileDialog::setScript(m_former);
    }

    ExpectFiles(const ExpectFiles&) = delete;
    ExpectFiles& operator=(const ExpectFiles&) = delete;

    /// The dialogs as they came.
    const QList<controls::FileDialog::Request>& asked() const { return m_asked; }

private:
    QString answer(const controls::FileDialog::Request& request)
    {
        m_asked.append(request);
        if (m_paths.isEmpty()) {
            ADD_FAILURE() << "Unexpected file dialog: " << request.title.toStdString();
            return {};
        }
        return m_paths.takeFirst();
    }

    QStringList m_paths;
    QList<controls::FileDialog::Request> m_asked;
    controls::FileDialog::Script m_former;
};

/// The boxes themselves on screen while it lives, for a test that presses their buttons.
class RealMessages
{
public:
    RealMessages()
        : m_former(controls::Message::setScript({}))
    {}
    ~RealMessages() { controls::Message::setScript(m_former); }

    RealMessages(const RealMessages&) = delete;
    RealMessages& operator=(const RealMessages&) = delete;

private:
    controls::Message::Script m_former;
};
