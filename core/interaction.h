#pragma once

#include <QString>
#include <QStringList>

#include <deque>

namespace medistock::core {

// How an operation talks to a person without knowing the screen: an information box titled
// "系统提示", or a Yes/No question. The desktop program shows message boxes, the command line
// prints to standard error and answers from --yes/--no, tests script the answers.
class Interaction
{
public:
    virtual ~Interaction() = default;
    virtual void inform(const QString &text) = 0;
    virtual bool ask(const QString &text) = 0;
};

// Answers questions from a script (then with a default) and records everything that was said.
class ScriptedInteraction : public Interaction
{
public:
    explicit ScriptedInteraction(bool defaultAnswer = false)
        : m_defaultAnswer(defaultAnswer)
    { }

    void inform(const QString &text) override { informed.append(text); }
    bool ask(const QString &text) override
    {
        asked.append(text);
        if (m_answers.empty())
            return m_defaultAnswer;
        const bool answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }

    void answerNext(bool answer) { m_answers.push_back(answer); }
    void setDefaultAnswer(bool answer) { m_defaultAnswer = answer; }
    void clear()
    {
        informed.clear();
        asked.clear();
        m_answers.clear();
    }

    QStringList informed;
    QStringList asked;

private:
    bool m_defaultAnswer;
    std::deque<bool> m_answers;
};

} // namespace medistock::core
