#include "windowTest.h"

#include "tests/support/brokenForms.h"
#include "zkcore/model/elementImpl.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

namespace {

class CommandLineTest : public WindowTest
{
protected:
    struct Result
    {
        int code = -1;
        QString out;
        QString err;
    };

    Result start(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), path("data"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path()); // one that is the user's alone
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral(ZK_BINARY_DIR "/bin/zkauthor"), arguments);
        Result result;
        if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
            result.code = process.exitCode();
        result.out = QString::fromUtf8(process.readAllStandardOutput());
        result.err = QString::fromUtf8(process.readAllStandardError());
        return result;
    }
};

TEST_F(CommandLineTest, HelpAndVersionNeedNoDisplay)
{
    const Result help = start({"--help"});
    EXPECT_EQ(help.code, 0) << help.err.toStdString();
    EXPECT_TRUE(help.out.contains(QLatin1String("--screenshot <file>"))) << help.out.toStdString();
    EXPECT_EQ(start({"--version"}).out, "zkauthor 0.1.0\n");
}

TEST_F(CommandLineTest, ScreenshotShowsWhatIsSelected)
{
    const Result plain = start({"--screenshot", "plain.png", path("sample.zkdoc")});
    EXPECT_EQ(plain.code, 0) << plain.err.toStdString();
    const Result selected =
        start({"--screenshot=two.png", "--select", "lamp1", "--select", "lamp2", path("sample.zkdoc")});
    EXPECT_EQ(selected.code, 0) << selected.err.toStdString();
    const QImage without(path("plain.png"), "png");
    const QImage with(path("two.png"), "png");
    EXPECT_GE(without.width(), 600);
    EXPECT_EQ(without.size(), with.size());
    EXPECT_NE(without, with);
    EXPECT_EQ(selected.err, "");

    // The same part by its instance id.
    const QString number = QString::number(part("lamp1")->instanceId());
    EXPECT_EQ(start({"--screenshot", "a.png", "--select", "lamp1", path("sample.zkdoc")}).code, 0);
    EXPECT_EQ(start({"--screenshot", "b.png", "--select", number, path("sample.zkdoc")}).code, 0);
    EXPECT_EQ(QImage(path("a.png")), QImage(path("b.png")));
}

TEST_F(CommandLineTest, ScreenshotOfFormsShowsThemWhole)
{
    const QString gallery = QStringLiteral(ZK_SOURCE_DIR "/samples/gallery.zkdoc");
    const QStringList common{"--forms", "--select", "first", gallery};
    EXPECT_EQ(start(QStringList{"--screenshot", "light.png"} + common).code, 0);
    EXPECT_EQ(start(QStringList{"--screenshot", "dark.png", "--dark"} + common).code, 0);
    EXPECT_EQ(start(QStringList{"-reverse", "--screenshot", "mirrored.png"} + common).code, 0);
    const QImage light(path("light.png"), "png");
    const QImage dark(path("dark.png"), "png");
    const QImage mirrored(path("mirrored.png"), "png");
    EXPECT_GT(light.height(), 1200); // more than a window holds
    EXPECT_EQ(dark.size(), light.size());
    EXPECT_EQ(mirrored.size(), light.size());
    EXPECT_NE(mirrored, light);
    const QPoint ground(light.width() / 2, light.height() - 2);
    EXPECT_GT(qGray(light.pixel(ground)), 180);
    EXPECT_LT(qGray(dark.pixel(ground)), 90);
    // The name of the selected part stands where lines begin.
    const auto hasInk = [](const QImage& image, int from) {
        for (int x = from; x < from + image.width() / 2 - 1; ++x)
            for (int y = 2; y < 20; ++y)
                if (image.pixel(x, y) != image.pixel(image.width() / 2, 2))
                    return true;
        return false;
    };
    EXPECT_TRUE(hasInk(light, 0));
    EXPECT_FALSE(hasInk(light, light.width() / 2));
    EXPECT_FALSE(hasInk(mirrored, 0));
    EXPECT_TRUE(hasInk(mirrored, light.width() / 2));
}

TEST_F(CommandLineTest, FaultsAreToldOnStandardError)
{
    const std::pair<QStringList, QString> cases[] = {
        {{"--screenshot", "x.png", "--select", "nobody", path("sample.zkdoc")},
         "zkauthor: There is no part with the id \"nobody\".\n"},
        {{"--log", "paper"}, "zkauthor: --log takes stdout, stderr, file, console or none, not \"paper\".\n"},
        {{"--screenshot", "x.png", "--run", "soon", path("sample.zkdoc")},
         "zkauthor: --run takes seconds up to 600, not \"soon\".\n"},
        {{"--screenshot", "x.png", "--dialog", "save-custom-part", path("sample.zkdoc")},
         "zkauthor: There is no dialog \"save-custom-part\" for what is selected.\n"},
        {{"--screenshot", "x.png", "--palette", "sun", path("sample.zkdoc")},
         "zkauthor: There is no palette \"sun\".\n"},
        {{"--screenshot", "x.png", "a", "b"}, "zkauthor: Only one document can be opened, but 2 were given.\n"},
    };
    for (const auto& [arguments, message] : cases) {
        const Result result =
            start(QStringList(arguments) << QStringLiteral("-platform") << QStringLiteral("offscreen"));
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.err, message);
    }
    EXPECT_EQ(start({"--screenshot", "x.png", path("missing.zkdoc")}).code, 1);
    EXPECT_FALSE(QFile::exists(path("x.png")));
    const Result unwritable = start({"--screenshot", "no/such/folder/x.png", path("sample.zkdoc")});
    EXPECT_EQ(unwritable.code, 1);
    EXPECT_TRUE(unwritable.err.contains(QLatin1String("no/such/folder/x.png"))) << unwritable.err.toStdString();
}

TEST_F(CommandLineTest, ChecksFormsAndPackagesWithoutDisplay)
{
    const QString folder = writeBrokenForms(path("packages"));
    const QString form = folder + "/forms/unbound-key.ui";
    // Nobody knows the package yet: only what holds for any class is found.
    Result result = start({"--check-form", form});
    EXPECT_EQ(result.code, 0) << result.err.toStdString();
    EXPECT_EQ(result.out, form + ": 0 errors, 0 warnings\n");
    result = start({"--check-form", form, "--class", "electronics/led", "--class=electronics/battery"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, form +
                              ":2: error: widget 'control' (ObserverSpinBox): property 'modelProperty': there is no "
                              "property \"amuont\" to bind [electronics/led, electronics/battery]\n" +
                              form + ": 1 error, 0 warnings\n");
    // An installed package tells which classes show the form, wherever the file is a copy of its.
    ASSERT_TRUE(QDir().mkpath(path("data") + "/zkauthor/zkauthor"));
    ASSERT_TRUE(QFile::link(path("packages"), path("data") + "/zkauthor/zkauthor/packages"));
    EXPECT_TRUE(
        start({"--check-form", form}).out.contains(QLatin1String("did you mean \"amount\"? [broken/unbound-key]")));

    result = start({"--check-package", folder});
    EXPECT_EQ(result.code, 1) << result.err.toStdString();
    const QStringList lines = result.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList expected;
    for (const BrokenForm& broken : brokenForms())
        for (const QString& message : broken.messages)
            expected.append(folder + "/forms/" + message);
    for (const QString& line : lines.mid(0, lines.size() - 1))
        EXPECT_TRUE(expected.removeOne(line)) << line.toStdString();
    EXPECT_EQ(expected, QStringList());

    EXPECT_EQ(start({"--check-form", path("no.ui")}).code, 2);
    EXPECT_EQ(start({"--check-form", "/dev/zero"}).err, "zkauthor: /dev/zero is no file.\n");
    EXPECT_EQ(start({"--check-form", form, "--class", "no/class"}).err, "zkauthor: There is no class \"no/class\".\n");
    EXPECT_EQ(start({"--check-package", path("data")}).code, 2);
    EXPECT_EQ(start({"--check-form", form, "--check-package", folder}).err,
              "zkauthor: --check-form and --check-package cannot be given together.\n");
}

TEST_F(CommandLineTest, CheckOfAPackageFindsAllThatIsWrongWithIt)
{
    const QDir folder(path("kitchen"));
    ASSERT_TRUE(folder.mkpath(QStringLiteral("forms")));
    const auto write = [&folder](const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    ASSERT_TRUE(write("forms/spare.ui", "<ui version=\"4.0\"><widget class=\"PaletteBoxSection\" name=\"a\"/></ui>"));
    ASSERT_TRUE(write("notes.odt", ""));
    ASSERT_TRUE(write("package.xml", R"(<package format="1" name="kitchen">
  <class id="kitchen/kettle" base="kitchen/pot"/>
  <class id="kitchen/pot" base="core/part"><property key="power" type="dubble"/></class>
  <class id="kitchen/cup" base="core/part"><property key="full" type="bool" default="perhaps"/></class>
  <class id="kitchen/spoon" base="kitchen/fork"/>
  <class id="kitchen/fork" base="kitchen/spoon"/>
  <class id="kitchen/knife" base="core/part"><form>kitchen/forms/sharp</form></class>
  <class id="kitchen/plate" base="core/part"/>
</package>)"));
    Result result = start({"--check-package", folder.path()});
    EXPECT_EQ(result.code, 1) << result.err.toStdString();
    QString shown = result.out;
    shown.replace(folder.path(), QLatin1String("F"));
    EXPECT_EQ(shown, R"(F/package.xml:3:80: error: "dubble" is no type of a property
F/package.xml:4:95: error: "perhaps" is no value of the type bool
F/package.xml:6:49: error: the class "kitchen/spoon" needs itself as a base or subpart
F/package.xml:7:51: error: there is no resource "kitchen/forms/sharp"
F/forms/spare.ui:1: warning: nothing names the file
F/notes.odt:1: warning: the extension stands for no kind of resource: the file is never used
F: 4 errors, 2 warnings
)");

    ASSERT_TRUE(write("package.xml", "<package format=\"1\" name=\"kitchen\"/>"));
    result = start({"--check-package", folder.path()});
    EXPECT_EQ(result.code, 0);
    shown = result.out;
    shown.replace(folder.path(), QLatin1String("F"));
    EXPECT_EQ(shown, "F/forms/spare.ui:1: warning: nothing names the file\n"
                     "F/notes.odt:1: warning: the extension stands for no kind of resource: the file is never used\n"
                     "F: 0 errors, 2 warnings\n");
}

TEST_F(CommandLineTest, CheckFindsNothingInThePackagesOfTheProgram)
{
    for (const char* name : {"core", "electronics", "flowcharts", "mechanics"}) {
        const QString folder = QStringLiteral(ZK_SOURCE_DIR "/packages/") + QLatin1String(name);
        const Result result = start({"--check-package", folder});
        EXPECT_EQ(result.out, folder + ": 0 errors, 0 warnings\n");
        EXPECT_EQ(result.code, 0) << result.err.toStdString();
    }
}

} // namespace
