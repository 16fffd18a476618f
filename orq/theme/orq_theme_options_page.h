#pragma once
// An options page on which the user sees every changeable theme colour and
// font, changes them (colour picker, font dialog) and resets them. Changes
// take effect at once; apply() keeps them in the per-user settings and
// revert() restores what was there when the page was made.
#include "orq_export.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QWidget>

class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

class ORQ_EXPORT ORQ_THEME_OPTIONS_PAGE : public QWidget {
  Q_OBJECT
public:
  explicit ORQ_THEME_OPTIONS_PAGE(QWidget* parent = nullptr);
  ~ORQ_THEME_OPTIONS_PAGE() override;

  // Saves colours, pens and fonts in the settings registry.
  void apply();
  // Puts back the values the page started with.
  void revert();

  QTreeWidget* get_color_list() const;
  QTreeWidget* get_font_list() const;
  QTabWidget* get_tabs() const;

  // "ORQ_GED_NET_SELECTED_COLOR" is shown as "GED: Net Selected".
  static QString display_name(const QString& resource_name);

signals:
  void theme_changed();

public slots:
  // Opens the colour picker or the font dialog for the current row.
  void change_current();
  void reset_current();
  void reset_all();
  void set_filter(const QString& text);

private:
  void fill();
  void update_color_item(QTreeWidgetItem* item);
  void update_font_item(QTreeWidgetItem* item);
  QTreeWidget* current_list() const;
  // The current row of the visible list, with its list and resource identifier.
  QTreeWidgetItem* current_item(QTreeWidget** list, int* id) const;

  QTabWidget* m_tabs;
  QTreeWidget* m_colors;
  QTreeWidget* m_fonts;
  QLineEdit* m_filter;
  QPushButton* m_change;
  QPushButton* m_reset;
  QPushButton* m_reset_all;
  QHash<int, QColor> m_saved_colors;
  struct SAVED_FONT {
    int text;
    int background;
    QFont font;
    int flag;
  };
  QHash<int, SAVED_FONT> m_saved_fonts;
};
