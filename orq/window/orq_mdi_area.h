#pragma once
// The document area of a tool's main window: documents as tabs (or as
// free sub-windows, by the user's choice), a themed background with the
// suite's watermark, and a column of clickable pictures over the background
// that open the suite's bulletin, documentation and notification pages.
#include "orq_export.h"

#include <QMap>
#include <QMdiArea>
#include <QPixmap>

class QLabel;
class QPaintEvent;

class ORQ_EXPORT ORQ_MDI_AREA : public QMdiArea {
  Q_OBJECT
public:
  explicit ORQ_MDI_AREA(QWidget* parent = nullptr);
  ~ORQ_MDI_AREA() override;

  // Tabs or sub-windows, from the user's setting (group 2, "mdi_tabs").
  void set_tabs();
  // Gives every tab whose text is title the tool tip; "[*]" does not count.
  void update_tab_tooltip(const QString& title, const QString& tooltip);
  // Every tab takes the tool tip of its sub-window, else of its document.
  void update_tab_tooltips();

public slots:
  // The bulletin banner for an update state (1 ready, 2 failed, 3 settings,
  // 4 downloading, 5 installed, anything else: available).
  void redraw_bulletin_bitmap(int bitmap);
  // Shows the picture in file on the banner registered under number.
  void show_bulletin_web_bitmap(bool hidden, const QString& file, int number);
  void on_documentation_pressed();
  void on_notification_center_pressed();
  void on_bulletin_pressed();
  void on_web_bitmap_pressed();
  // Closes the document of the tab, which may refuse.
  void close_tab(int index);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QPixmap m_background_pixmap;
  QPixmap m_watermark_pixmap;
  QMap<int, QLabel*> m_banner_labels;
};
