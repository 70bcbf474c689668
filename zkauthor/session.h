#pragma once

#include <QObject>
#include <memory>

class MainWindow;

/// The main window of a run of the program. When the user chooses another language, another window takes its place,
/// with the document, its history and all that is on view as they were: so no text of the old language stays anywhere.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Makes the first window, hidden.
    Session();
    ~Session() override;

    /// Never null; another one after windowReplaced().
    MainWindow* window() const { return m_window.get(); }
    /// Makes the program speak the language of a locale (see Languages::use()), after what is being typed was entered.
    void changeLanguage(const QString& localeName);

Q_SIGNALS:
    void windowReplaced(MainWindow* window);

private:
    void followWindow();

    std::unique_ptr<MainWindow> m_window;
};
