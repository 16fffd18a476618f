#include "orq_set_zoom_dlg.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include <cmath>

namespace {
QString percent_text(float value)
{
  return QString::number(value, 'f', 1) + QStringLiteral("%");
}
} // namespace

QString ORQ_SET_ZOOM_DLG::fit_in_window_text()
{
  return QStringLiteral("Fit in Window");
}

ORQ_SET_ZOOM_DLG::ORQ_SET_ZOOM_DLG(float min, float max, QWidget* parent, Qt::WindowFlags flags)
    : ORQ_DIALOG(parent, flags)
    , m_combo_box(new QComboBox(this))
    , m_min(min)
    , m_max(max)
{
  setObjectName(QStringLiteral("ORQ_SET_ZOOM_DLG_UI"));
  setWindowTitle(QStringLiteral("Zoom"));
  auto* layout = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel(QStringLiteral("Magnification:"), this));
  m_combo_box->setObjectName(QStringLiteral("comboBox"));
  row->addWidget(m_combo_box);
  layout->addLayout(row);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->setObjectName(QStringLiteral("buttonBox"));
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  m_combo_box->setEditable(true);
  m_combo_box->setInsertPolicy(QComboBox::InsertAlphabetically);
  m_combo_box->setDuplicatesEnabled(false);
  // A view whose drawing is too large for the size cap has no finite
  // maximum, and a tiny minimum over a large scaling arrives as 0: halving
  // and doubling must stop where the float does, or the list never ends.
  QStringList items;
  for (float value = 50.0f; value >= min && value > 0.0f; value /= 2.0f)
    items.prepend(percent_text(value));
  items.append(QStringLiteral("100.0%"));
  for (float value = 200.0f; value <= max && std::isfinite(value); value *= 2.0f)
    items.append(percent_text(value));
  m_combo_box->addItems(items);
  m_combo_box->addItem(QIcon(), fit_in_window_text(), QVariant());
  m_combo_box->setValidator(new QRegularExpressionValidator(
      QRegularExpression(QStringLiteral("^[0-9]\\d{0,5}(\\.\\d{1})?%?$")), m_combo_box));
}

ORQ_SET_ZOOM_DLG::~ORQ_SET_ZOOM_DLG() = default;

QString ORQ_SET_ZOOM_DLG::get_current_text() const
{
  return m_combo_box->currentText();
}

float ORQ_SET_ZOOM_DLG::get_selected_zoom() const
{
  QString text = get_current_text();
  text.remove(QRegularExpression(QStringLiteral("\\%")));
  bool ok = false;
  float value = text.toFloat(&ok);
  if (!ok)
    return 100.0f;
  if (value < m_min)
    value = m_min;
  if (value > m_max)
    value = m_max;
  return value;
}

void ORQ_SET_ZOOM_DLG::select_current_zoom(float zoom)
{
  const QString text = percent_text(zoom * 100.0f);
  int index = m_combo_box->findText(text);
  if (index < 0) {
    m_combo_box->addItem(text);
    index = m_combo_box->count() - 1;
  }
  m_combo_box->setCurrentIndex(index);
}

QComboBox* ORQ_SET_ZOOM_DLG::get_combo_box() const
{
  return m_combo_box;
}
