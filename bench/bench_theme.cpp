// Painting code resolves theme resources for every item it draws. This
// measures resolving a colour, a pen and a font through the wrappers against
// copying a plain QColor, QPen and QFont, the cost a tool would pay without
// themes.
//   bench_theme [iterations]
#include <orq.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
template <typename F>
double best_ns(int iterations, F&& body)
{
  double best = 1e30;
  for (int round = 0; round < 5; ++round) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < iterations; ++i)
      body(i);
    best = std::min(best, double(timer.nsecsElapsed()) / iterations);
  }
  return best;
}

volatile unsigned g_sink;
}  // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  char** qt_argv = ORQ_APP::copy_argv_for_qt(argc, const_cast<const char**>(argv));
  int qt_argc = argc;
  ORQ_APP app(qt_argc, qt_argv);
  const int n = argc > 1 ? std::max(1000, atoi(argv[1])) : 2000000;

  // The resources a floor-plan view would use, cycled so no single lookup
  // stays hot.
  const ORQ_COLOR_RESOURCE colours[] = {ORQ_FPV_DIE_COLOR, ORQ_FPV_PAD_COLOR, ORQ_GED_NET_COLOR,
                                        ORQ_WAV_TRACE_3_COLOR, ORQ_MSW_ERROR_COLOR, ORQ_WINDOW_TEXT_COLOR};
  const ORQ_PEN_RESOURCE pens[] = {ORQ_FPV_DIE_PEN, ORQ_GED_NET_PEN, ORQ_WAV_CURSOR_1_PEN, ORQ_BLACK_PEN};
  const ORQ_FONT_RESOURCE fonts[] = {ORQ_FPV_BLOCK_NAME_FONT, ORQ_GUI_FONT, ORQ_MSG_TEXT_FONT};
  std::vector<QColor> plain_colours;
  std::vector<QPen> plain_pens;
  std::vector<QFont> plain_fonts;
  for (auto c : colours)
    plain_colours.push_back(ORQ_COLOR(c).get_color());
  for (auto p : pens)
    plain_pens.push_back(*ORQ_PEN(p).get_pen());
  for (auto f : fonts)
    plain_fonts.push_back(ORQ_FONT(f).get_font());

  // Check first that both sides see the same values.
  bool same = true;
  for (size_t i = 0; i < plain_colours.size(); ++i)
    same = same && ORQ_COLOR(colours[i]).get_color() == plain_colours[i];
  for (size_t i = 0; i < plain_pens.size(); ++i)
    same = same && *ORQ_PEN(pens[i]).get_pen() == plain_pens[i];
  for (size_t i = 0; i < plain_fonts.size(); ++i)
    same = same && ORQ_FONT(fonts[i]).get_font() == plain_fonts[i];

  const double colour_plain = best_ns(n, [&](int i) { QColor c = plain_colours[size_t(i % 6)]; g_sink = c.rgba(); });
  const double colour_ours = best_ns(n, [&](int i) { QColor c = ORQ_COLOR(colours[i % 6]).get_color(); g_sink = c.rgba(); });
  const double pen_plain = best_ns(n, [&](int i) { QPen p = plain_pens[size_t(i % 4)]; g_sink = unsigned(p.width()); });
  const double pen_ours = best_ns(n, [&](int i) {
    ORQ_PEN pen(pens[i % 4]);
    g_sink = unsigned(pen.get_pen()->width());
  });
  const double font_plain = best_ns(n, [&](int i) { QFont f = plain_fonts[size_t(i % 3)]; g_sink = unsigned(f.pointSize()); });
  const double font_ours = best_ns(n, [&](int i) { QFont f = ORQ_FONT(fonts[i % 3]).get_font(); g_sink = unsigned(f.pointSize()); });

  std::printf("%-8s %14s %14s %8s\n", "kind", "plain Qt ns", "ORQ wrapper ns", "ratio");
  std::printf("%-8s %14.1f %14.1f %8.2f\n", "colour", colour_plain, colour_ours, colour_ours / colour_plain);
  std::printf("%-8s %14.1f %14.1f %8.2f\n", "pen", pen_plain, pen_ours, pen_ours / pen_plain);
  std::printf("%-8s %14.1f %14.1f %8.2f\n", "font", font_plain, font_ours, font_ours / font_plain);
  std::printf("%d lookups per run, best of 5; values identical: %s\n", n, same ? "yes" : "NO");
  return same ? 0 : 1;
}
