#include "orq_line_edit_filter.h"

#include "orq_icons.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QPointer>
#include <QStyle>
#include <QTextEdit>
#include <QToolButton>

namespace {

const char* const button_style = "QToolButton { border: none; padding:0px; }";

QToolButton* make_button(QWidget* parent, ORQ_ICON_ENUM icon, const char* name, const QString& tip)
{
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setIcon(orq_get_icon(icon));
  button->setCursor(Qt::ArrowCursor);
  button->setStyleSheet(QLatin1String(button_style));
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

QString examples_text()
{
  const char* const html =
      "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" \"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
      "<html><head><meta name=\"qrichtext\" content=\"1\" /><style type=\"text/css\">\n"
      "p, li { white-space: pre-wrap; }\n"
      "</style></head><body style=\" font-family:'Sans Serif'; font-size:9pt; font-weight:400; "
      "font-style:normal;\">\n"
      "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; "
      "text-indent:0px;\"><span style=\" font-weight:600; color:#0000ff;\">abc </span>matches with the "
      "string &quot;abc&quot; or &quot;ABC&quot;</p>\n"
      "<p style=\"-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; margin-left:0px; "
      "margin-right:0px; -qt-block-indent:0; text-indent:0px;\"></p>\n"
      "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; "
      "text-indent:0px;\"><span style=\" font-weight:600; color:#0000ff;\">abc* </span>matches "
      "&quot;abc&quot; and any characters following it.</p>\n"
      "<p style=\"-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; margin-left:0px; "
      "margin-right:0px; -qt-block-indent:0; text-indent:0px;\"></p>\n"
      "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; "
      "text-indent:0px;\"><span style=\" font-weight:600; color:#0000ff;\">abc def </span>matches strings "
      "that contain both &quot;abc&quot; and &quot;def&quot;</p>\n"
      "<p style=\"-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; margin-left:0px; "
      "margin-right:0px; -qt-block-indent:0; text-indent:0px;\"></p>\n"
      "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; "
      "text-indent:0px;\"><span style=\" font-weight:600; color:#0000ff;\">&quot; abc &quot; </span>matches "
      "strings that contain a space on either side of abc</p></body></html>";
  return QCoreApplication::translate("ORQ_LINE_EDIT_EXAMPLE", html);
}

} // namespace

ORQ_LINE_EDIT_FILTER::ORQ_LINE_EDIT_FILTER(QWidget* parent)
    : QLineEdit(parent)
    , m_clear_button(make_button(this, ORQ_GRAY_X_ICON, "clear_button", tr("Clear filter")))
    , m_option_button(
          make_button(this, ORQ_TREE_VIEW_FILTER_OPTION_ICON, "option_button", tr("Filter options")))
{
  setPlaceholderText(QStringLiteral("<<Filter>>"));
  connect(m_clear_button, &QToolButton::clicked, this, &QLineEdit::clear);
  connect(this, &QLineEdit::textChanged, this, &ORQ_LINE_EDIT_FILTER::update_close_button);
  m_clear_button->hide();

  // The text must never run under the buttons.
  const QSize clear = m_clear_button->sizeHint();
  setStyleSheet(QStringLiteral("QLineEdit { padding-right: %1px; } ")
                    .arg(clear.width() + m_option_button->sizeHint().width()));
  const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
  const QSize least = minimumSizeHint();
  setMinimumSize(qMax(2 * least.width(), clear.height() + 2 * frame + 2),
                 qMax(least.height(), clear.height() + 2 * frame + 2));
}

ORQ_LINE_EDIT_FILTER::~ORQ_LINE_EDIT_FILTER() = default;

QToolButton* ORQ_LINE_EDIT_FILTER::get_clear_button() const
{
  return m_clear_button;
}

QToolButton* ORQ_LINE_EDIT_FILTER::get_option_button() const
{
  return m_option_button;
}

void ORQ_LINE_EDIT_FILTER::update_close_button(const QString& text)
{
  m_clear_button->setVisible(!text.isEmpty());
}

void ORQ_LINE_EDIT_FILTER::show_examples()
{
  auto* dialog = new QDialog(this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (dialog->objectName().isEmpty())
    dialog->setObjectName(QStringLiteral("ORQ_LINE_EDIT_EXAMPLE"));
  dialog->resize(482, 233);
  dialog->setWindowTitle(QCoreApplication::translate("ORQ_LINE_EDIT_EXAMPLE", "Examples"));
  auto* grid = new QGridLayout(dialog);
  grid->setObjectName(QStringLiteral("gridLayout"));
  auto* group = new QGroupBox(dialog);
  group->setObjectName(QStringLiteral("groupBx"));
  group->setTitle(QCoreApplication::translate("ORQ_LINE_EDIT_EXAMPLE", "Search examples"));
  auto* group_grid = new QGridLayout(group);
  group_grid->setObjectName(QStringLiteral("gridLayout_2"));
  auto* text = new QTextEdit(group);
  text->setObjectName(QStringLiteral("exampleTextEdt"));
  text->setReadOnly(true);
  text->setHtml(examples_text());
  group_grid->addWidget(text, 0, 0);
  grid->addWidget(group, 0, 0);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, dialog);
  buttons->setObjectName(QStringLiteral("buttonBox"));
  grid->addWidget(buttons, 1, 0);
  connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  dialog->show();
}

void ORQ_LINE_EDIT_FILTER::resizeEvent(QResizeEvent* event)
{
  QLineEdit::resizeEvent(event);
  const int options = m_option_button->isVisibleTo(this) ? m_option_button->sizeHint().width() : 0;
  const QSize clear = m_clear_button->sizeHint();
  const int y = (rect().bottom() + 1 - clear.height()) / 2;
  m_clear_button->move(rect().right() - options - clear.width(), y);
  m_option_button->move(rect().right() - options, y);
}

void ORQ_LINE_EDIT_FILTER::contextMenuEvent(QContextMenuEvent* event)
{
  // The menu is a child of the line edit; should the edit go away while the
  // menu runs, the menu goes with it and must not be deleted a second time.
  QPointer<QMenu> menu = createStandardContextMenu();
  menu->setObjectName(QStringLiteral("orq_line_edit_filter_menu"));
  menu->addSeparator();
  QAction* examples = menu->addAction(tr("Examples..."));
  connect(examples, &QAction::triggered, this, &ORQ_LINE_EDIT_FILTER::show_examples);
  menu->exec(event->globalPos());
  delete menu;
}
