// Small pictures of documents that nobody has opened. Reading is done aside, on the file's text alone, since nodes and
// pictures belong to the thread of the user interface; there only as much is made of it as a small picture shows.
#include "zkeditor/documentPreview.h"

#include "zkcore/model/documentImpl.h"
#include "zkcore/printing/scenePainter.h"
#include "zkcore/storage/xmlGuard.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QTextStream>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

namespace {

// More would hold up the user interface.
constexpr int partsInPreview = 1500;
constexpr qint64 charactersInPreview = 4'000'000;

struct PreviewTexts
{
    Q_DECLARE_TR_FUNCTIONS(ModelsBrowser)
};

/// Where to cut a document so that what stands before is one with its first scene.
class ExcerptEnd
{
public:
    bool isFound() const { return m_offset >= 0; }
    qint64 offset() const { return m_offset; }
    QLatin1String closing() const { return m_closing; }

    void enter(const QXmlStreamReader& xml)
    {
        ++m_depth;
        if (m_depth == sceneDepth && xml.qualifiedName() == u"scene")
            m_inScene = true;
        if (m_inScene && (xml.qualifiedName() == u"part" || xml.qualifiedName() == u"subpart"))
            ++m_parts;
    }

    void leave(const QXmlStreamReader& xml)
    {
        if (!isFound() && m_inScene && m_depth == sceneDepth)
            cut(xml, QLatin1String("</model></zkdoc>"));
        else if (!isFound() && m_inScene && m_depth == sceneDepth + 1 && m_parts >= partsInPreview)
            cut(xml, QLatin1String("</scene></model></zkdoc>"));
        --m_depth;
    }

private:
    static constexpr int sceneDepth = 3;

    void cut(const QXmlStreamReader& xml, QLatin1String closing)
    {
        m_offset = xml.characterOffset();
        m_closing = closing;
    }

    qint64 m_offset = -1;
    QLatin1String m_closing;
    int m_depth = 0;
    int m_parts = 0;
    bool m_inScene = false;
};

} // namespace

DocumentExcerpt readDocumentExcerpt(const QString& fileName, const std::atomic<bool>& cancelled)
{
    DocumentExcerpt excerpt;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        excerpt.fault = file.errorString();
        return excerpt;
    }
    XmlGuardDevice guard(file);
    QXmlStreamReader xml(&guard);
    xml.setNamespaceProcessing(false);
    ExcerptEnd end;
    while (!xml.atEnd() && !cancelled) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            end.enter(xml);
        else if (token == QXmlStreamReader::EndElement)
            end.leave(xml);
        else if (token == QXmlStreamReader::DTD)
            xml.raiseError(PreviewTexts::tr("document type declarations are not allowed"));
    }
    if (cancelled)
        return {};
    if (guard.isStopped())
        xml.raiseError(XmlGuardDevice::reason());
    if (xml.hasError()) {
        excerpt.fault = QStringLiteral("%1:%2: %3")
                            .arg(QString::number(xml.lineNumber()),
                                 QString::number(std::max<qint64>(xml.columnNumber(), 1)), xml.errorString());
        return excerpt;
    }
    // Without a scene the whole of it says why it is no document.
    const qint64 length = end.isFound() ? end.offset() : xml.characterOffset();
    if (length > charactersInPreview)
        return excerpt;
    file.seek(0);
    QTextStream stream(&file);
    excerpt.text = stream.read(length) + end.closing();
    return excerpt;
}

QPixmap paintDocumentPreview(const DocumentExcerpt& excerpt, const QSize& size, double devicePixelRatio, QString& fault)
{
    QByteArray bytes = excerpt.text.toUtf8();
    QBuffer buffer(&bytes);
    DocumentImpl document;
    if (!buffer.open(QIODevice::ReadOnly) || !document.loadFrom(buffer, QString())) {
        fault = document.lastError();
        if (fault.startsWith(u':'))
            fault.remove(0, 1); // the name that was not given
        return {};
    }
    const SceneImpl* scene = document.getModel()->getScenes().front();
    const zk::Point extent = scene->valueOfProperty(PropertyKey::fromString("size")).toPoint();
    if (!(extent.x > 0) || !(extent.y > 0))
        return {};
    const double scale = std::min(size.width() / extent.x, size.height() / extent.y);
    const QSize pixels(std::max(static_cast<int>(std::lround(extent.x * scale * devicePixelRatio)), 1),
                       std::max(static_cast<int>(std::lround(extent.y * scale * devicePixelRatio)), 1));
    QPixmap picture(pixels);
    picture.fill(Qt::white);
    picture.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    ScenePainter(painter).paintSpace(*scene);
    return picture;
}
