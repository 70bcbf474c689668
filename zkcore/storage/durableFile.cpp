#include "zkcore/storage/durableFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

constexpr int maximumLinks = 40;

void synchroniseFolder(const QString& folder)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
#else
    Q_UNUSED(folder)
#endif
}

} // namespace

QString durableFile::target(const QString& fileName)
{
    QString name = fileName;
    for (int i = 0; i < maximumLinks; ++i) {
        const QFileInfo info(name);
        if (!info.isSymLink())
            return name;
        name = info.symLinkTarget();
    }
    return fileName; // a circle: writing says so
}

bool durableFile::commit(QSaveFile& file)
{
    const QString name = file.fileName();
    if (!file.commit())
        return false;
    synchroniseFolder(QFileInfo(name).absolutePath());
    return true;
}
