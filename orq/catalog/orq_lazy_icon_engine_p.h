#pragma once
// An icon engine that only remembers its files (or how to make the icon)
// until the icon is first drawn or measured. Qt's SVG engine parses a file as
// soon as it is added, which would make the whole catalogue cost most of a
// second at start-up.
#include <QIcon>
#include <QIconEngine>
#include <QVector>

#include <functional>
#include <memory>

class ORQ_LAZY_ICON_ENGINE : public QIconEngine {
public:
  ORQ_LAZY_ICON_ENGINE() = default;
  // The icon is make() on first use, with any files added since on top.
  explicit ORQ_LAZY_ICON_ENGINE(std::function<QIcon()> make);
  ORQ_LAZY_ICON_ENGINE(const ORQ_LAZY_ICON_ENGINE& other);

  void addFile(const QString& file_name, const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override;
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
  QString key() const override;
  QIconEngine* clone() const override;
  void virtual_hook(int id, void* data) override;

  // Whether a file has been read yet; for tests and benchmarks.
  bool is_loaded() const { return m_icon != nullptr; }

private:
  struct FILE_ENTRY {
    QString name;
    QSize size;
    QIcon::Mode mode;
    QIcon::State state;
  };
  QIcon& loaded() const;

  std::function<QIcon()> m_make;
  QVector<FILE_ENTRY> m_files;
  mutable std::unique_ptr<QIcon> m_icon; // the real icon, made on first use
};
