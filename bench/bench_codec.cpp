// Prints the cost of composing and of parsing one frame, in nanoseconds per frame, so that later
// changes to the codec can be compared. Not a test: it asserts nothing about speed.
#include "frame_codec.h"

#include <QElapsedTimer>
#include <QString>
#include <QVector>

#include <cstdio>

namespace {

template <typename F>
double ns_per_call(F &&fn, int calls) {
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < calls; ++i) {
        fn(i);
    }
    return static_cast<double>(clock.nsecsElapsed()) / calls;
}

volatile quint64 sink;  // keeps the optimiser from dropping the measured work

}  // namespace

int main() {
    constexpr int calls = 400000;
    QVector<QString> lines;
    for (int i = 0; i < 256; ++i) {
        lines.append(frame_codec::compose(i % 8 + 1, 0x91 + i % 16, static_cast<quint32>(i * 977))
                         .left(25));
    }

    double best_compose = 1e18;
    double best_parse = 1e18;
    for (int round = 0; round < 5; ++round) {
        best_compose = qMin(best_compose, ns_per_call(
                                              [](int i) {
                                                  sink = sink + static_cast<quint64>(
                                                      frame_codec::compose(i & 0x7FF, i & 0x7F,
                                                                           static_cast<quint32>(i))
                                                          .size());
                                              },
                                              calls));
        best_parse = qMin(best_parse, ns_per_call(
                                          [&lines](int i) {
                                              sink = sink + static_cast<quint64>(
                                                  frame_codec::parse(lines[i & 255]).value);
                                          },
                                          calls));
    }
    std::printf("codec: compose %.0f ns/frame, parse %.0f ns/frame (best of 5 x %d)\n",
                best_compose, best_parse, calls);
    std::printf("codec: parse costs %.1fx compose\n", best_parse / best_compose);
    return 0;
}
