// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVDrawingTrait.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageDrawingTraits.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;
using Work = std::function<void()>;

/// One turn of each, another one first every time; the times in seconds.
template <size_t Count>
std::array<double, Count> inTurns(const std::array<Work, Count> &works)
{
    static size_t first = 0;
    std::array<double, Count> times{};
    ++first;
    for (size_t turn = 0; turn < Count; ++turn) {
        const size_t work = (first + turn) % Count;
        const auto start = Clock::now();
        works.at(work)();
        times.at(work) = std::chrono::duration<double>(Clock::now() - start).count();
    }
    return times;
}

/// Like a cover: areas with edges, soft shades, and some noise.
QByteArray cover(int length, const char *format)
{
    QImage image(length, length, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < length; ++y) {
        auto *const line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < length; ++x) {
            noise = noise * 1664525 + 1013904223;
            const int shade = 127 + int(60 * std::sin(x * 0.05) * std::cos(y * 0.03));
            const bool isInverted = (((x / 37) ^ (y / 53)) & 1) != 0;
            const int level = (isInverted ? 255 - shade : shade) + int(noise >> 28);
            line[x] = qRgb(std::min(level, 255), std::min(level + 10, 255), level / 2);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format, 90);
    return bytes;
}

QImage decoded(const QByteArray &bytes, QSize scaledSize = {})
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setScaledSize(scaledSize);
    return reader.read();
}

constexpr QSize Fitted(300, 300);

/// The mean of all pixels that come to lie on one.
QImage areaAverage(const QImage &whole)
{
    const int ratio = whole.width() / Fitted.width();
    QImage average(Fitted, QImage::Format_RGB32);
    for (int y = 0; y < Fitted.height(); ++y) {
        for (int x = 0; x < Fitted.width(); ++x) {
            std::array<int, 3> sums{};
            for (int part = 0; part < ratio * ratio; ++part) {
                const QRgb pixel = whole.pixel(x * ratio + part % ratio, y * ratio + part / ratio);
                sums[0] += qRed(pixel);
                sums[1] += qGreen(pixel);
                sums[2] += qBlue(pixel);
            }
            const auto mean = [&](int sum) { return (sum + ratio * ratio / 2) / (ratio * ratio); };
            average.setPixel(x, y, qRgb(mean(sums[0]), mean(sums[1]), mean(sums[2])));
        }
    }
    return average;
}

/// The peak signal-to-noise ratio in dB.
double likeness(const QImage &one, const QImage &other)
{
    double errors = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
            for (const int error : {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)})
                errors += error * error;
        }
    }
    return 10 * std::log10(255.0 * 255.0 * 3 * one.width() * one.height() / std::max(errors, 1.0));
}

/// From the bytes to the picture that a view shows. A ratio above 1 says that the peer takes longer.
void fit(benchmark::State &state, const QByteArray &bytes)
{
    QImage ours, smooth, scaled;
    const QImage whole = decoded(bytes), exact = areaAverage(whole);
    const std::array<Work, 5> works{
        [&] { ours = ZEVImageDescription(bytes, Fitted).imageScaledToFitSize(Fitted); },
        [&] { smooth = decoded(bytes).scaled(Fitted, Qt::KeepAspectRatio, Qt::SmoothTransformation); },
        [&] { scaled = decoded(bytes, Fitted); },
        [&] { benchmark::DoNotOptimize(ZEVImageCrop::imageScaledToFitSize(whole, Fitted)); },
        [&] {
            benchmark::DoNotOptimize(whole.scaled(Fitted, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        },
    };
    for ([[maybe_unused]] auto iteration : state) {
        const auto times = inTurns(works);
        state.SetIterationTime(times[0]);
        state.counters["smooth/ours"] = times[1] / times[0];
        state.counters["scaled_decode/ours"] = times[2] / times[0];
        state.counters["smooth/ours, decoded before"] = times[4] / times[3];
        const double dB = likeness(ours, exact);
        state.counters["dB"] = dB;
        state.counters["smooth dB"] = likeness(smooth, exact);
        state.counters["scaled_decode dB"] = likeness(scaled, exact);
        if (dB < 49)
            return state.SkipWithError("the pictures differ");
    }
}

QImage glyph()
{
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::black);
    painter.drawEllipse(2, 2, 12, 12);
    return image;
}

void stencils(benchmark::State &state, const ZEVDrawingTrait &trait, int count)
{
    const QImage image = glyph();
    QImage ours(640, 640, QImage::Format_ARGB32_Premultiplied);
    ours.fill(Qt::gray);
    QImage blits = ours;
    const auto place = [](int index) { return QPoint(index % 32 * 20, index / 32 % 32 * 20); };
    const std::array<Work, 2> works{
        [&] {
            QPainter painter(&ours);
            for (int index = 0; index < count; ++index) {
                painter.resetTransform();
                painter.translate(place(index));
                ZEVImageDrawingTraits::drawInRect(image, painter, QRectF(0, 0, 16, 16), {}, trait,
                                                  QPainter::CompositionMode_SourceOver, 1, true);
            }
        },
        [&] {
            QPainter painter(&blits);
            for (int index = 0; index < count; ++index)
                painter.drawImage(place(index), image);
        },
    };
    for ([[maybe_unused]] auto iteration : state) {
        const auto times = inTurns(works);
        state.SetIterationTime(times[0]);
        state.counters["ours/blit"] = times[0] / times[1];
        state.counters["us_each"] = times[0] / count * 1e6;
    }
}

/// ZEV_BENCH_SCALE shrinks the work for a quick look: 0.1 is a tenth of it.
double scale()
{
    bool given = false;
    const double scale = qEnvironmentVariable("ZEV_BENCH_SCALE").toDouble(&given);
    return given ? scale : 1.0;
}

void setUp(benchmark::internal::Benchmark *benchmark)
{
    benchmark->UseManualTime()->Iterations(1)->Repetitions(15)->ReportAggregatesOnly()->Unit(
        benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const std::pair<const char *, const ZEVDrawingTrait &> traits[]{
        {"default", ZEVDrawingTrait::defaultTrait()},
        {"highlighted", ZEVDrawingTrait::defaultHighlightedTrait()},
        {"white", ZEVDrawingTrait::defaultWhiteTrait()},
        {"blue", ZEVDrawingTrait::blueHighlightedTrait()},
    };
    for (const char *format : {"JPG", "PNG"})
        setUp(benchmark::RegisterBenchmark((std::string("fit/") + format).c_str(), fit,
                                           cover(int(3000 * scale()), format)));
    for (const auto &[name, trait] : traits)
        setUp(benchmark::RegisterBenchmark((std::string("stencils/") + name).c_str(), stencils, trait,
                                           int(1000 * scale())));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
