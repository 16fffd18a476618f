// ORQ_LINE_EDIT_FILTER driven with real key and mouse events: the clear
// button follows the text, the buttons sit at the right edge, the context
// menu offers "Examples..." and the examples dialog holds the forms.
#include "orq_test_support.h"

#include <orq.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

class TST_LINE_EDIT_FILTER : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void clear_button_follows_the_text()
  {
    ORQ_LINE_EDIT_FILTER edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QToolButton* clear = edit.get_clear_button();
    QCOMPARE(edit.placeholderText(), QStringLiteral("<<Filter>>"));
    QVERIFY(!clear->isVisible());
    QVERIFY(edit.get_option_button()->isVisible());

    QTest::keyClicks(&edit, QStringLiteral("u_a"));
    QCOMPARE(edit.text(), QStringLiteral("u_a"));
    QVERIFY(clear->isVisible());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(clear->isVisible());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(!clear->isVisible());

    QTest::keyClicks(&edit, QStringLiteral("nand"));
    QSignalSpy changed(&edit, &QLineEdit::textChanged);
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(edit.text(), QString());
    QCOMPARE(changed.count(), 1);
    QVERIFY(!clear->isVisible());
  }

  void buttons_look_the_part()
  {
    ORQ_LINE_EDIT_FILTER edit;
    for (QToolButton* button : {edit.get_clear_button(), edit.get_option_button()}) {
      QCOMPARE(button->styleSheet(), QStringLiteral("QToolButton { border: none; padding:0px; }"));
      QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
      QVERIFY(!button->icon().isNull());
      QVERIFY(!button->accessibleName().isEmpty());
    }
    const int padding =
        edit.get_clear_button()->sizeHint().width() + edit.get_option_button()->sizeHint().width();
    QCOMPARE(edit.styleSheet(), QStringLiteral("QLineEdit { padding-right: %1px; } ").arg(padding));
  }

  void minimum_size_leaves_room_for_the_buttons()
  {
    ORQ_LINE_EDIT_FILTER edit;
    const int frame = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const QSize clear = edit.get_clear_button()->sizeHint();
    QLineEdit plain;
    plain.setStyleSheet(edit.styleSheet());
    QCOMPARE(edit.minimumWidth(), qMax(2 * plain.minimumSizeHint().width(), clear.height() + 2 * frame + 2));
    QCOMPARE(edit.minimumHeight(), qMax(plain.minimumSizeHint().height(), clear.height() + 2 * frame + 2));
  }

  void buttons_sit_at_the_right_edge_data()
  {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("options_shown");
    QTest::newRow("wide") << QSize(400, 30) << true;
    QTest::newRow("narrow and tall") << QSize(120, 41) << true;
    QTest::newRow("odd height") << QSize(250, 27) << true;
    QTest::newRow("option button hidden") << QSize(300, 30) << false;
  }

  void buttons_sit_at_the_right_edge()
  {
    QFETCH(QSize, size);
    QFETCH(bool, options_shown);
    ORQ_LINE_EDIT_FILTER edit;
    edit.get_option_button()->setVisible(options_shown);
    edit.resize(size);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const QSize clear = edit.get_clear_button()->sizeHint();
    const int options = options_shown ? edit.get_option_button()->sizeHint().width() : 0;
    const int y = (edit.rect().bottom() + 1 - clear.height()) / 2;
    QCOMPARE(edit.get_clear_button()->pos(), QPoint(edit.rect().right() - options - clear.width(), y));
    QCOMPARE(edit.get_option_button()->pos(), QPoint(edit.rect().right() - options, y));
  }

  void examples_dialog_holds_the_forms()
  {
    ORQ_LINE_EDIT_FILTER edit;
    edit.show_examples();
    edit.show_examples();
    const QList<QDialog*> dialogs = edit.findChildren<QDialog*>(QStringLiteral("ORQ_LINE_EDIT_EXAMPLE"));
    QCOMPARE(dialogs.size(), 2);
    QVERIFY(dialogs.at(0) != dialogs.at(1));
    QDialog* dialog = dialogs.first();
    QVERIFY(dialog->isVisible());
    QVERIFY(!dialog->isModal());
    QCOMPARE(dialog->size(), QSize(482, 233));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Examples"));
    QVERIFY(dialog->findChild<QGridLayout*>(QStringLiteral("gridLayout")));
    auto* group = dialog->findChild<QGroupBox*>(QStringLiteral("groupBx"));
    QVERIFY(group);
    QCOMPARE(group->title(), QStringLiteral("Search examples"));
    QVERIFY(group->findChild<QGridLayout*>(QStringLiteral("gridLayout_2")));
    auto* text = group->findChild<QTextEdit*>(QStringLiteral("exampleTextEdt"));
    QVERIFY(text);
    QVERIFY(text->isReadOnly());
    const QString plain = text->toPlainText();
    QVERIFY(plain.contains(QStringLiteral("abc matches with the string \"abc\" or \"ABC\"")));
    QVERIFY(plain.contains(QStringLiteral("abc* matches \"abc\" and any characters following it.")));
    QVERIFY(plain.contains(QStringLiteral("abc def matches strings that contain both \"abc\" and \"def\"")));
    QVERIFY(plain.contains(
        QStringLiteral("\" abc \" matches strings that contain a space on either side of abc")));
    QCOMPARE(plain.count(QLatin1Char('\n')), 6); // four paragraphs, three empty ones between
    QVERIFY(text->toHtml().contains(QStringLiteral("color:#0000ff")));

    auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    QVERIFY(buttons);
    QCOMPARE(buttons->buttons().size(), 1);
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QTRY_COMPARE(edit.findChildren<QDialog*>(QStringLiteral("ORQ_LINE_EDIT_EXAMPLE")).size(), 1);
  }

  void context_menu_offers_examples()
  {
    ORQ_LINE_EDIT_FILTER edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QStringList texts;
    QString menu_name;
    bool separated = false;
    QTimer::singleShot(0, this, [&] {
      QWidget* popup = QApplication::activePopupWidget();
      if (auto* menu = qobject_cast<QMenu*>(popup)) {
        menu_name = menu->objectName();
        const QList<QAction*> actions = menu->actions();
        for (QAction* action : actions)
          texts << action->text();
        separated = actions.size() >= 2 && actions.at(actions.size() - 2)->isSeparator();
        actions.last()->trigger();
      }
      // Whatever opened must close, or the menu's own loop never returns.
      if (popup)
        popup->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), edit.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&edit, &event);
    QCOMPARE(menu_name, QStringLiteral("orq_line_edit_filter_menu"));
    QVERIFY(texts.size() > 2);
    QCOMPARE(texts.last(), QStringLiteral("Examples..."));
    QVERIFY(separated);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(edit.findChildren<QDialog*>(QStringLiteral("ORQ_LINE_EDIT_EXAMPLE")).size(), 1);
    QVERIFY(!edit.findChild<QMenu*>());
  }
};

ORQ_TEST_REGISTER(TST_LINE_EDIT_FILTER);
#include "tst_line_edit_filter.moc"
