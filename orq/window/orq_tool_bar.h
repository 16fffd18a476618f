#pragma once
// The tool bar of the library: small or large icons by the user's choice
// (settings group 59, "large_icons"), a choice made for the user on small
// screens, and F1 context help.
#include "orq_export.h"

#include <QString>
#include <QToolBar>

class QKeyEvent;
class ORQ_MAIN_WINDOW;

class ORQ_EXPORT ORQ_TOOL_BAR : public QToolBar {
  Q_OBJECT
public:
  explicit ORQ_TOOL_BAR(const QString& title, QWidget* parent = nullptr);
  explicit ORQ_TOOL_BAR(QWidget* parent = nullptr);
  ~ORQ_TOOL_BAR() override;

  // Whether tool bars shown near widget (the primary screen for null) get
  // large icons: the stored choice, else false on a screen smaller than
  // 1600x1080 (then stored), else true; always false with small_icons on.
  static bool get_large_icon_setting(QWidget* widget);
  // Icons one theme-font line high, or half as large again; stored as the
  // user's choice.
  void set_large_icons(bool large);
  // For every tool bar of the window.
  static void set_large_icons(ORQ_MAIN_WINDOW* window, bool large);

protected:
  void keyPressEvent(QKeyEvent* event) override;
  virtual QString get_help_topic_string() const;

private:
  void setup();
};
