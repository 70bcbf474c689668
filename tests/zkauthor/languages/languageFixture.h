#pragma once

#include "tests/support/translationFile.h"
#include "zkauthor/mainWindow.h"
#include "zkauthor/session.h"
#include "zkcore/model/documentImpl.h"

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

/// The program with a sample in some language. Settings go to a folder of the test.
class LanguageFixture : public testing::Test
{
protected:
    using Visit = std::function<void(const QWidget& window, const QString& name)>;

    void SetUp() override;
    void TearDown() override;

    /// Shows a copy of the sample in a language.
    void start(const QString& locale, const char* sample = "gallery");
    /// The same in the language of now.
    void open(const char* sample);
    MainWindow& window() { return *m_session->window(); }
    DocumentImpl& document() { return *window().document(); }
    void select(const QStringList& ids);

    /// Every window of the program, every palette, the forms of every class of parts, each while it is on view.
    void visitAll(const Visit& visit);
    /// What the next dialog is visited as; it is closed then.
    void visitNextDialog(const QString& name, const Visit& visit);

    /// What a translation file says.
    static QString translated(const char* file, const char* context, const char* source);

    QTemporaryDir m_folder;
    std::unique_ptr<Session> m_session;
};
