#include "orq_lazy_icon_engine_p.h"

#include <QPainter>

#include <utility>

ORQ_LAZY_ICON_ENGINE::ORQ_LAZY_ICON_ENGINE(std::function<QIcon()> make)
    : m_make(std::move(make))
{
}

ORQ_LAZY_ICON_ENGINE::ORQ_LAZY_ICON_ENGINE(const ORQ_LAZY_ICON_ENGINE& other)
    : QIconEngine(other)
    , m_make(other.m_make)
    , m_files(other.m_files)
    , m_icon(other.m_icon ? std::make_unique<QIcon>(*other.m_icon) : nullptr)
{
}

void ORQ_LAZY_ICON_ENGINE::addFile(const QString& file_name, const QSize& size, QIcon::Mode mode,
                                   QIcon::State state)
{
  m_files.append({file_name, size, mode, state});
  if (m_icon)
    m_icon->addFile(file_name, size, mode, state);
}

void ORQ_LAZY_ICON_ENGINE::addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state)
{
  loaded().addPixmap(pixmap, mode, state);
}

QIcon& ORQ_LAZY_ICON_ENGINE::loaded() const
{
  if (!m_icon) {
    // QIcon::addFile on an icon without an engine picks the engine by file
    // suffix: the SVG engine for ".svg", the pixmap engine otherwise.
    m_icon = std::make_unique<QIcon>(m_make ? m_make() : QIcon());
    for (const FILE_ENTRY& file : m_files)
      m_icon->addFile(file.name, file.size, file.mode, file.state);
  }
  return *m_icon;
}

void ORQ_LAZY_ICON_ENGINE::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state)
{
  loaded().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap ORQ_LAZY_ICON_ENGINE::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
  return loaded().pixmap(size, mode, state);
}

QSize ORQ_LAZY_ICON_ENGINE::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
  return loaded().actualSize(size, mode, state);
}

QList<QSize> ORQ_LAZY_ICON_ENGINE::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
  return loaded().availableSizes(mode, state);
}

QString ORQ_LAZY_ICON_ENGINE::key() const
{
  return QStringLiteral("ORQ_LAZY_ICON_ENGINE");
}

QIconEngine* ORQ_LAZY_ICON_ENGINE::clone() const
{
  return new ORQ_LAZY_ICON_ENGINE(*this);
}

void ORQ_LAZY_ICON_ENGINE::virtual_hook(int id, void* data)
{
  switch (id) {
  case QIconEngine::IsNullHook:
    // Never null before the first use: QIcon::addFile drops an engine that
    // says it is null and makes the parsing engine in its place.
    *static_cast<bool*>(data) = m_icon && m_icon->isNull();
    return;
  case QIconEngine::ScaledPixmapHook: {
    // High-DPI painting asks for a scaled pixmap; the loaded icon knows how.
    auto* arg = static_cast<QIconEngine::ScaledPixmapArgument*>(data);
    arg->pixmap = loaded().pixmap(arg->size * arg->scale, arg->mode, arg->state);
    return;
  }
  default:
    QIconEngine::virtual_hook(id, data);
  }
}
