// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTextObjectInterface>

// Shows the pictures of a text in their own size, and those that are wider than the page in its width. The toolkit
// would let the reader scroll sideways, and coarsens pictures where letters are larger than usual.
class FittedPictures final : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // For a document that has a layout already; goes with it.
    explicit FittedPictures(QTextDocument *document);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *document, int position,
                    const QTextFormat &format) override;
};
