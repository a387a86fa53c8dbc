#pragma once

#include "base/error.h"
#include "scene/scene_snapshot.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <atomic>

namespace zm {

/// One way to write a flattened picture.
struct ExportFormat
{
    QString key;
    QByteArray writerFormat;
    QString suffix;
    bool transparent;
    /// For file dialogs, in the user's language.
    QString filterText;
};

QList<ExportFormat> exportFormats();
/// An unknown key gives the first format, JPEG.
ExportFormat exportFormat(const QString &key);
bool isExportFormatKey(const QString &key);
/// The format that a file name asks for by its suffix, in any case; an empty key when there is none.
QString exportFormatKeyForFile(const QString &path, bool transparent);
/// JPEG takes "jpg" and "jpeg", every other format the suffix of its row; in any case.
bool acceptsSuffix(const ExportFormat &format, const QString &suffix);

/// The lowest side of an exported picture, pixels.
inline constexpr int kMinimumExportSide = 16;
/// The highest side when no GPU tells a lower one, pixels.
inline constexpr int kMaximumExportSide = 8192;
inline constexpr int kDefaultExportQuality = 92;

/// What an export shows, in document units with whole sides: the document, or with clip off all layers that are
/// visible. Sides grow to whole pixels counted from the document's top left corner, so that a picture of odd size keeps
/// its pixels.
QRectF exportRectangle(const SceneSnapshot &snapshot, bool clipToDocument);

/// The size of rectangle, scaled down to fit maximumSide and never up, each side at least kMinimumExportSide.
QSize defaultExportSize(const QRectF &rectangle, int maximumSide = kMaximumExportSide);
/// The size with this width, and the height that keeps the rectangle's proportions; both are scaled to fit maximumSide.
QSize exportSizeForWidth(const QRectF &rectangle, int width, int maximumSide = kMaximumExportSide);
QSize exportSizeForHeight(const QRectF &rectangle, int height, int maximumSide = kMaximumExportSide);

struct ExportSettings
{
    QString formatKey;
    /// 0..100; without effect on PNG.
    int quality = kDefaultExportQuality;
    /// Pixels.
    QSize size;
    bool clipToDocument = true;
};

/// The bytes of a finished file: renders, scales, encodes and tags. May run on any thread; stops between two steps once
/// cancelled is set, and then gives nothing without an error.
std::optional<QByteArray> exportImage(const SceneSnapshot &snapshot, const ExportSettings &settings, Error &error,
                                      const std::atomic_bool *cancelled = nullptr);

/// What a preview shows: the bytes as exportImage() gives them, and the picture that they decode to, with the losses of
/// its format.
struct ExportPreview
{
    QByteArray bytes;
    QImage image;
};

/// The same, decoded again.
std::optional<ExportPreview> exportPreview(const SceneSnapshot &snapshot, const ExportSettings &settings, Error &error,
                                           const std::atomic_bool *cancelled = nullptr);

/// A document that is nothing but this decoded picture would export pixel for pixel as the picture: it is opaque, keeps
/// its size, and no transparency is asked for.
bool isExportedAsDecoded(const QImage &picture, const ExportSettings &settings);
/// Exports such a picture without the way through a document's pixel format and back to the encoder's.
std::optional<QByteArray> exportAsDecoded(const QImage &picture, const ExportSettings &settings, Error &error);

/// Puts the bytes into the file, all or nothing: a failure leaves what was there. Its error is the bare reason, to be
/// put into a sentence.
bool writeWholeFile(const QString &path, const QByteArray &bytes, Error &error);
/// The same, with a sentence of its own.
bool writeExportedImage(const QString &path, const QByteArray &bytes, Error &error);

} // namespace zm
