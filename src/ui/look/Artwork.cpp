// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/Artwork.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "ui/look/Palette.h"

namespace sprout {

namespace {

QByteArray SourceOf(const QString& name, const QColor& inPlaceOfDeepLeaf)
{
    QFile file(QStringLiteral(":/art/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray source = file.readAll();
    if (inPlaceOfDeepLeaf.isValid())
        source.replace(kDeepLeaf.name().toUpper().toLatin1(), inPlaceOfDeepLeaf.name().toLatin1());
    return source;
}

QImage Drawn(const QString& name, QSize devicePixels, const QColor& inPlaceOfDeepLeaf, const QColor& ground)
{
    QSvgRenderer renderer(SourceOf(name, inPlaceOfDeepLeaf));
    if (!renderer.isValid() || devicePixels.isEmpty())
        return {};
    QImage image(devicePixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(devicePixels)));
    return image;
}

QString KeyOf(const QString& name, QSize devicePixels, qreal pixelRatio, const QColor& colour)
{
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(name)
        .arg(devicePixels.width())
        .arg(devicePixels.height())
        .arg(pixelRatio)
        .arg(colour.isValid() ? colour.name() : QString());
}

QSize DevicePixels(QSize size, qreal pixelRatio)
{
    return (QSizeF(size) * pixelRatio).toSize();
}

/// Artworks that are drawn before they are requested.
class ArtworkAhead {
public:
    ArtworkAhead() = default;
    ArtworkAhead(const ArtworkAhead&) = delete;
    ArtworkAhead& operator=(const ArtworkAhead&) = delete;
    ~ArtworkAhead() { End(); }

    void Draw(const std::vector<WantedArtwork>& wanted)
    {
        if (worker.joinable())
            worker.join();
        for (const auto& [name, size, pixelRatio, colour] : wanted) {
            const QSize devicePixels = DevicePixels(size, pixelRatio);
            waiting.push_back({KeyOf(name, devicePixels, pixelRatio, colour), name, devicePixels, colour});
        }
        worker = std::thread([this] { DrawWaiting(); });
    }

    /// Returns the artwork; an empty image if the caller must draw it.
    QImage Take(const QString& key)
    {
        std::unique_lock lock(mutex);
        std::erase_if(waiting, [&key](const Order& order) { return order.key == key; });
        isDrawn.wait(lock, [this, &key] { return beingDrawn != key; });
        return drawn.take(key);
    }

    /// Finishes the artwork that is being drawn and drops the rest.
    void End()
    {
        {
            const std::lock_guard lock(mutex);
            waiting.clear();
        }
        if (worker.joinable())
            worker.join();
    }

private:
    struct Order {
        QString key;
        QString name;
        QSize devicePixels;
        QColor colour;
    };

    void DrawWaiting()
    {
        std::unique_lock lock(mutex);
        while (!waiting.empty()) {
            const Order order = std::move(waiting.front());
            waiting.pop_front();
            beingDrawn = order.key;
            lock.unlock();
            QImage image = Drawn(order.name, order.devicePixels, order.colour, Qt::transparent);
            lock.lock();
            drawn.insert(std::exchange(beingDrawn, {}), image);
            isDrawn.notify_one();
        }
    }

    std::thread worker;
    std::mutex mutex; // protects the members below
    std::condition_variable isDrawn;
    std::deque<Order> waiting;
    QString beingDrawn;
    QHash<QString, QImage> drawn;
};

ArtworkAhead& TheArtworkAhead()
{
    static ArtworkAhead ahead;
    return ahead;
}

/// Drawing uses Qt tables that may be destroyed before our statics, so it ends with the application.
void EndArtworkAhead()
{
    TheArtworkAhead().End();
}

} // namespace

QPixmap Artwork(const WantedArtwork& wanted)
{
    return Artwork(wanted.name, wanted.size, wanted.pixelRatio, wanted.inPlaceOfDeepLeaf);
}

void DrawArtworkAhead(const std::vector<WantedArtwork>& wanted)
{
    static std::once_flag isToEnd;
    std::call_once(isToEnd, qAddPostRoutine, EndArtworkAhead);
    TheArtworkAhead().Draw(wanted);
}

QPixmap Artwork(const QString& name, QSize size, qreal pixelRatio, const QColor& inPlaceOfDeepLeaf)
{
    static QHash<QString, QPixmap> kept;
    const QSize devicePixels = DevicePixels(size, pixelRatio);
    const QString key = KeyOf(name, devicePixels, pixelRatio, inPlaceOfDeepLeaf);
    const auto found = kept.constFind(key);
    if (found != kept.constEnd())
        return *found;
    QImage image = TheArtworkAhead().Take(key);
    if (image.isNull())
        image = Drawn(name, devicePixels, inPlaceOfDeepLeaf, Qt::transparent);
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(pixelRatio);
    kept.insert(key, pixmap);
    return pixmap;
}

Picture ArtworkPicture(const QString& name)
{
    const QImage image = Drawn(name, QSize(kPictureSide, kPictureSide), {}, Qt::white);
    if (image.isNull())
        return {};
    std::vector<std::uint32_t> pixels;
    pixels.reserve(kPicturePixels);
    for (int y = 0; y < kPictureSide; ++y) {
        for (int x = 0; x < kPictureSide; ++x) {
            const QRgb colour = image.pixel(x, y);
            pixels.push_back(static_cast<std::uint32_t>(qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour)));
        }
    }
    return {kPictureSide, kPictureSide, std::move(pixels)};
}

QImage ToImage(const Picture& picture)
{
    QImage image(picture.Width(), picture.Height(), QImage::Format_RGB32);
    auto pixel = picture.Pixels().begin();
    for (int y = 0; y < picture.Height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint32_t colour = *pixel++;
            line[x] = qRgb(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                           static_cast<int>(colour >> 16 & 0xFF));
        }
    }
    return image;
}

} // namespace sprout
