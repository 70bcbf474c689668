#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>
#include <atomic>

/// What a document file says as far as a small picture of it needs: everything up to the end of the first scene, or to
/// some part in the middle of that when there are very many.
struct DocumentExcerpt
{
    /// A document of its own, with the lines and columns of the file; null when it would be too large.
    QString text;
    /// Why the file is no document, with line and column; empty when it may be one.
    QString fault;
};

/// Reads a whole file. For any thread; ends early, with nothing, when `cancelled` becomes true.
DocumentExcerpt readDocumentExcerpt(const QString& fileName, const std::atomic<bool>& cancelled);

/// The picture of the excerpt's first scene, within the size (device-independent pixels); null with `fault` when the
/// excerpt is no document. Takes some milliseconds; for the thread of the user interface.
QPixmap paintDocumentPreview(const DocumentExcerpt& excerpt, const QSize& size, double devicePixelRatio,
                             QString& fault);
