// The standard action catalogue: the framework rows tools rely on, the
// numbering, the shapes of the tool rows and what orq_create_action builds.
#include "orq_test_support.h"

#include <gen_tcl.h>
#include <orq.h>

#include <QAction>
#include <QRegularExpression>
#include <QSignalSpy>

#include <cstring>

namespace {

QString expected_tooltip(const QString& menu, const QKeySequence& key)
{
  QString text = menu;
  text.replace(QLatin1String(" && "), QLatin1String(" AND "));
  text.remove(QLatin1Char('&'));
  text.remove(QLatin1String("..."));
  return text + QLatin1String(" - ") + key.toString(QKeySequence::PortableText);
}

ORQ_ACTION_ENUM action_of(int value)
{
  return static_cast<ORQ_ACTION_ENUM>(value);
}

} // namespace

class TST_ACTIONS : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void framework_rows_data()
  {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("shortcut"); // "S <key>" for a standard key
    QTest::addColumn<QString>("statustip");
    // clang-format off
    const struct { const char* name; int value; const char* menu; const char* shortcut; const char* tip; } rows[] = {
      {"NEW", 322, "&New...", "S New", "Creates a new file"},
      {"OPEN", 403, "&Open...", "S Open", "Opens an existing file"},
      {"OPEN_PROJECT", 405, "Open P&roject...", "Ctrl+J", "Opens an existing project"},
      {"CLOSE", 65, "&Close", "Ctrl+F4", "Closes the current file"},
      {"CLOSE_ALL", 66, "Close Al&l", "", "Closes all open windows"},
      {"SAVE", 510, "&Save", "S Save", "Saves the current file"},
      {"SAVE_AS", 512, "Save &As...", "", "Saves the current file with a new name"},
      {"SAVE_ALL", 511, "Save All", "Ctrl+Shift+S", "Saves all open files"},
      {"EXPORT", 160, "Export&...", "", "Exports the current file to a different format"},
      {"PAGE_SETUP", 411, "Page Set&up...", "", "Sets margins, page orientation, and other layout options"},
      {"PRINT_PREVIEW", 440, "Print Pre&view", "", "Shows how a file will look when it is printed"},
      {"PRINT", 437, "&Print...", "S Print", "Prints the current file"},
      {"EXIT", 157, "E&xit", "Alt+F4", "Exits after prompting you to save any unsaved files"},
      {"UNDO", 708, "&Undo", "S Undo", "Reverses the last action"},
      {"REDO", 468, "&Redo", "S Redo", "Reverses the last Undo"},
      {"CUT", 119, "Cu&t", "S Cut", "Cuts the selection and puts it on the Clipboard"},
      {"COPY", 78, "&Copy", "S Copy", "Copies the selection to the Clipboard"},
      {"PASTE", 413, "&Paste", "S Paste", "Inserts the contents of the Clipboard"},
      {"DELETE", 127, "&Delete", "S Delete", "Deletes the selection"},
      {"SELECT_ALL", 523, "Select &All", "S SelectAll", "Selects everything in the file"},
      {"FIND", 184, "&Find...", "S Find", "Searches for specified text"},
      {"FIND_NEXT", 185, "Find Ne&xt", "F3", "Searches for the next occurrence of the specified text"},
      {"FIND_PREVIOUS", 186, "Find P&revious", "Shift+F3", "Searches for the previous occurrence of the specified text"},
      {"COPY_FILE_NAME", 79, "Copy File Name", "", "Copies the file name of the current file to the clipboard"},
      {"COPY_FULL_PATH", 80, "Copy Full Path", "", "Copies the full path of the current file to the clipboard"},
      {"COPY_TOOLTIP", 82, "Copy Tooltip", "", "Copies the tooltip text into the clipboard"},
      {"REFRESH", 471, "&Refresh", "", "Refreshes the current view"},
      {"ZOOM", 741, "&Zoom...", "", "Control how large the file contents appear on screen"},
      {"ZOOM_IN", 743, "Zoom &In", "Ctrl+Space", "Zooms in to increase the scale of objects displayed"},
      {"ZOOM_OUT", 744, "Zoom &Out", "Ctrl+Shift+Space", "Zooms out to decrease the scale of objects displayed"},
      {"ZOOM_FIT", 742, "&Fit in Window", "Ctrl+Alt+W", "Changes the display scale to fit the entire view into the current window"},
      {"ZOOM_SELECTION", 745, "Fit Selection in Window", "Ctrl+Shift+W", "Changes the display scale to fit the selection into the current window"},
      {"ZOOM_TOOL", 746, "Zoom Tool", "", "Zooms in and out. Hold Shift to zoom out."},
      {"PAN_TOOL", 412, "Hand Tool", "", "Grab the document to pan side to side or up and down"},
      {"SELECTION_TOOL", 522, "Selection Tool", "", "Selects objects and text"},
      {"AREA_SELECTION_TOOL", 30, "Area Selection Tool", "", "Selects multiple objects in an area"},
      {"MAGNIFYING_TOOL", 308, "Magnifying Glass Tool", "", "Click to magnify area under the pointer"},
      {"BIRDS_EYE_VIEW", 47, "Bird's Eye View", "", "Toggles the bird's eye view on and off"},
      {"CASCADE", 51, "&Cascade", "Shift+F5", "Arranges all the child windows in a cascade pattern"},
      {"TILE", 698, "&Tile", "Shift+F4", "Arranges all child windows in a tile pattern"},
      {"MORE_WINDOWS", 316, "&More Windows...", "", "Activate this window"},
      {"DETACH", 135, "&Detach Window", "", "Detaches the window"},
      {"ATTACH", 41, "&Attach Window", "", "Attaches the window"},
      {"ENABLE_DOCKING", 152, "Enable Docking", "", "Enable docking"},
      {"CUSTOMIZE", 116, "Customi&ze...", "", "Customizes the user interface"},
      {"CUSTOMIZE_COLUMN", 117, "C&ustomize Columns...", "", "Opens customize column dialog"},
      {"CUSTOMIZE_FILTER", 118, "Customize &Filter...", "", "Opens customize filter dialog"},
      {"TREE_VIEW_FILTER_ALL_MSG", 705, "Highlight search results", "", "Highlight search results"},
      {"TREE_VIEW_FILTER_MATCHED_ONLY", 706, "Filter search results", "", "Filter search results"},
      {"EXPAND_ALL", 158, "E&xpand All", "", "Expand the selected entity"},
      {"COLLAPSE_ALL", 68, "Co&llapse All", "", "Collapse the selected entity"},
      {"OPEN_PROPERTIES", 406, "&Properties...", "", "Opens up properties dialog"},
      {"VANTOR_HELP", 458, "&Help Topics", "", "Displays program help topics"},
      {"HELP", 242, "&Help", "S HelpContents", "Display help for the currently selected message"},
    };
    // clang-format on
    for (const auto& row : rows)
      QTest::newRow(row.name) << QString::fromLatin1(row.name) << row.value << QString::fromUtf8(row.menu)
                              << QString::fromLatin1(row.shortcut) << QString::fromUtf8(row.tip);
  }

  void framework_rows()
  {
    QFETCH(QString, name);
    QFETCH(int, value);
    QFETCH(QString, menu);
    QFETCH(QString, shortcut);
    QFETCH(QString, statustip);
    const QString enumerator = QStringLiteral("ORQ_%1_ACTION").arg(name);
    const ORQ_ACTION_ENUM action = orq_get_action_enum(enumerator);
    QCOMPARE(int(action), value);
    QCOMPARE(orq_get_action_enum_string(action), enumerator);
    QCOMPARE(QString::fromUtf8(orq_get_menu_text(action)), menu);
    QCOMPARE(QString::fromUtf8(orq_get_statustip(action)), statustip);

    const bool standard = shortcut.startsWith(QLatin1String("S "));
    const char* custom = orq_get_custom_shortcut(action);
    if (standard || shortcut.isEmpty())
      QVERIFY(!custom);
    else
      QCOMPARE(QString::fromLatin1(custom), shortcut);

    QObject owner;
    QAction* created = orq_create_action(action, &owner);
    QCOMPARE(created->parent(), &owner);
    QCOMPARE(created->text(), menu);
    QCOMPARE(created->statusTip(), statustip);
    QKeySequence key;
    if (standard) {
      const QMetaEnum keys = QMetaEnum::fromType<QKeySequence::StandardKey>();
      const auto standard_key =
          static_cast<QKeySequence::StandardKey>(keys.keyToValue(qPrintable(shortcut.mid(2))));
      QCOMPARE(created->shortcuts(), QKeySequence::keyBindings(standard_key));
      key = QKeySequence::keyBindings(standard_key).value(0);
    } else if (!shortcut.isEmpty()) {
      key = QKeySequence(shortcut, QKeySequence::PortableText);
      QCOMPARE(created->shortcut(), key);
    } else {
      QVERIFY(created->shortcut().isEmpty());
    }
    if (name == QLatin1String("VANTOR_HELP"))
      QCOMPARE(created->toolTip(), QStringLiteral("Help Topics"));
    else if (!key.isEmpty())
      QCOMPARE(created->toolTip(), expected_tooltip(menu, key));
    QCOMPARE(created->isCheckable(), name == QLatin1String("ZOOM_TOOL"));
    QVERIFY(created->shortcutContext() == Qt::WindowShortcut && created->data().isNull());
    QVERIFY(created->objectName().isEmpty());
  }

  void copy_tool_tip_uses_the_platform_copy_key()
  {
    QObject owner;
    QAction* copy = orq_create_action(ORQ_COPY_ACTION, &owner);
    QCOMPARE(copy->toolTip(), QStringLiteral("Copy - ") +
                                  QKeySequence(QKeySequence::Copy).toString(QKeySequence::PortableText));
    if (QKeySequence(QKeySequence::Copy) == QKeySequence(QStringLiteral("Ctrl+C")))
      QCOMPARE(copy->toolTip(), QStringLiteral("Copy - Ctrl+C"));
  }

  void exported_constants_are_the_catalogue_texts()
  {
    QCOMPARE(orq_get_menu_text(ORQ_COPY_ACTION), ORQ_ACTION_MENU_TEXT_COPY);
    QCOMPARE(orq_get_statustip(ORQ_ZOOM_TOOL_ACTION), ORQ_ACTION_STATUSTIP_ZOOM_TOOL);
    QCOMPARE(orq_get_custom_shortcut(ORQ_ZOOM_SELECTION_ACTION), ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_SELECTION);
    QCOMPARE(orq_get_tooltip(ORQ_VANTOR_HELP_ACTION), ORQ_ACTION_TOOLTIP_VANTOR_HELP);
    QCOMPARE(QString::fromLatin1(ORQ_ACTION_TOOLTIP_VANTOR_HELP), QStringLiteral("Help Topics"));
    QCOMPARE(QString::fromLatin1(ORQ_ACTION_CUSTOM_SHORTCUT_ZOOM_SELECTION), QStringLiteral("Ctrl+Shift+W"));
    QCOMPARE(orq_get_tcl_function(ORQ_START_PARTITION_PLANNER_ACTION),
             ORQ_ACTION_TCL_FUNCTION_START_PARTITION_PLANNER);
  }

  void names_and_values_round_trip_in_alphabetical_order()
  {
    QStringList names;
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
      const QString name = orq_get_action_enum_string(action_of(value));
      QVERIFY2(QRegularExpression(QStringLiteral("^ORQ_[A-Z0-9_]+_ACTION$")).match(name).hasMatch(),
               qPrintable(name));
      QCOMPARE(int(orq_get_action_enum(name)), value);
      names << name;
    }
    QCOMPARE(ORQ_ACTION_COUNT, 746);
    // The help-topics row keeps the value it had before the suite got its
    // present name; every other row sits at its alphabetical place.
    QCOMPARE(names.takeAt(ORQ_VANTOR_HELP_ACTION - 1), QStringLiteral("ORQ_VANTOR_HELP_ACTION"));
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(),
              [](const QString& a, const QString& b) { return a.toLatin1() < b.toLatin1(); });
    QCOMPARE(names, sorted);
  }

  void names_outside_the_catalogue_data()
  {
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("lower case") << QStringLiteral("orq_zoom_tool_action");
    QTest::newRow("without prefix") << QStringLiteral("ZOOM_TOOL_ACTION");
    QTest::newRow("trailing blank") << QStringLiteral("ORQ_ZOOM_TOOL_ACTION ");
    QTest::newRow("icon name") << QStringLiteral("ORQ_ZOOM_TOOL_ICON");
  }

  void names_outside_the_catalogue()
  {
    QFETCH(QString, name);
    QCOMPARE(int(orq_get_action_enum(name)), 0);
  }

  void values_outside_the_catalogue_have_no_name()
  {
    QCOMPARE(int(orq_get_action_enum(QStringLiteral("ORQ_ZOOM_TOOL_ACTION"))), 746);
    // Values an ORQ_ACTION_ENUM can hold without being a catalogue value.
    for (int value : {0, 747, 1023})
      QVERIFY(orq_get_action_enum_string(action_of(value)).isEmpty());
  }

  void lookups_of_invalid_values_are_internal_errors_data()
  {
    QTest::addColumn<int>("lookup");
    QTest::addColumn<int>("value");
    const char* names[] = {"menu text",       "status tip",   "tool tip",
                           "custom shortcut", "Tcl function", "without symbol"};
    for (int lookup = 0; lookup < 6; ++lookup) {
      for (int value : {0, 747, 1023})
        QTest::addRow("%s of %d", names[lookup], value) << lookup << value;
    }
  }

  void lookups_of_invalid_values_are_internal_errors()
  {
    QFETCH(int, lookup);
    QFETCH(int, value);
    const ORQ_ACTION_ENUM action = action_of(value);
    const QString condition = orq_test_internal_error([&] {
      switch (lookup) {
      case 0:
        orq_get_menu_text(action);
        break;
      case 1:
        orq_get_statustip(action);
        break;
      case 2:
        orq_get_tooltip(action);
        break;
      case 3:
        orq_get_custom_shortcut(action);
        break;
      case 4:
        orq_get_tcl_function(action);
        break;
      default:
        orq_get_menu_text_without_symbol(action);
        break;
      }
    });
    QCOMPARE(condition, QStringLiteral("The calling function has passed an illegal ORQ_ACTION_ENUM"));
  }

  void invalid_values_give_a_bare_action()
  {
    QObject owner;
    for (int value : {0, 747}) {
      QAction* bare = orq_create_action(action_of(value), &owner);
      QCOMPARE(bare->parent(), &owner);
      QVERIFY(bare->text().isEmpty() && bare->icon().isNull() && bare->shortcut().isEmpty());
      QVERIFY(!qobject_cast<ORQ_TCL_ACTION*>(bare));
    }
  }

  void menu_text_without_symbol_data()
  {
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("expected");
    QTest::newRow("ampersands between words")
        << int(ORQ_ANALYZE_ELABORATE_ACTION) << QStringLiteral("Analysis AND Elaboration");
    QTest::newRow("mnemonic and dialog") << int(ORQ_OPEN_PROJECT_ACTION) << QStringLiteral("Open Project");
    QTest::newRow("mnemonic before dots") << int(ORQ_EXPORT_ACTION) << QStringLiteral("Export");
    QTest::newRow("apostrophe kept") << int(ORQ_BIRDS_EYE_VIEW_ACTION) << QStringLiteral("Bird's Eye View");
    QTest::newRow("plain") << int(ORQ_SAVE_ALL_ACTION) << QStringLiteral("Save All");
  }

  void menu_text_without_symbol()
  {
    QFETCH(int, action);
    QFETCH(QString, expected);
    QCOMPARE(orq_get_menu_text_without_symbol(action_of(action)), expected);
  }

  void catalogue_totals_over_all_actions()
  {
    QObject owner;
    int with_shortcut = 0, with_custom = 0, with_standard = 0, with_icon = 0, with_tcl = 0, checkable = 0;
    QMap<QString, int> groups;
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
      const ORQ_ACTION_ENUM action = action_of(value);
      QAction* created = orq_create_action(action, &owner);
      const char* custom = orq_get_custom_shortcut(action);
      if (custom) {
        ++with_custom;
      } else if (!created->shortcut().isEmpty()) {
        ++with_standard;
      }
      if (!created->shortcut().isEmpty()) {
        ++with_shortcut;
        QVERIFY2(
            created->toolTip().startsWith(orq_get_menu_text_without_symbol(action) + QLatin1String(" - ")),
            qPrintable(created->toolTip()));
      }
      with_icon += created->icon().isNull() ? 0 : 1;
      with_tcl += orq_get_tcl_function(action) ? 1 : 0;
      checkable += created->isCheckable() ? 1 : 0;
      QVERIFY(std::strlen(orq_get_menu_text(action)) > 0 && std::strlen(orq_get_statustip(action)) > 0);
      const QString middle = orq_get_action_enum_string(action).mid(4).chopped(7);
      const int cut = middle.indexOf(QLatin1Char('_'));
      if (cut > 0)
        ++groups[middle.left(cut)];
    }
    QCOMPARE(with_shortcut, 104);
    QCOMPARE(with_custom, 88);
    QCOMPARE(with_standard, 16);
    QCOMPARE(with_icon, 340);
    QCOMPARE(with_tcl, 1);
    QCOMPARE(checkable, 1);
    const QMap<QString, int> sizes{{"SHOW", 75},   {"HIDE", 8},      {"NODE", 54},   {"CREATE", 30},
                                   {"START", 18},  {"GENERATE", 13}, {"LOCATE", 13}, {"PROJECT", 11},
                                   {"EXPORT", 9},  {"SUPPRESS", 9},  {"VIEW", 9},    {"CLEAR", 8},
                                   {"INSTANCE", 7}};
    for (auto it = sizes.begin(); it != sizes.end(); ++it)
      QCOMPARE(groups.value(it.key()), it.value());
  }

  void every_shortcut_reads_in_its_tool_tip_and_fires_data()
  {
    QTest::addColumn<int>("action");
    QObject owner;
    int rows = 0;
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
      const QAction* created = orq_create_action(action_of(value), &owner);
      if (created->shortcuts().isEmpty() && !orq_get_custom_shortcut(action_of(value)))
        continue;
      QTest::newRow(qPrintable(orq_get_action_enum_string(action_of(value)))) << value;
      ++rows;
    }
    QCOMPARE(rows, 104);
  }

  void every_shortcut_reads_in_its_tool_tip_and_fires()
  {
    QFETCH(int, action);
    QWidget window;
    QAction* created = orq_create_action(action_of(action), &window);
    const QList<QKeySequence> shortcuts = created->shortcuts();
    QVERIFY(!shortcuts.isEmpty());
    for (const QKeySequence& shortcut : shortcuts) {
      QVERIFY(shortcut.count() >= 1);
      for (uint i = 0; i < uint(shortcut.count()); ++i) {
        const int key = shortcut[i] & ~int(Qt::KeyboardModifierMask);
        QVERIFY2(key != Qt::Key_unknown && key != 0, qPrintable(shortcut.toString()));
      }
    }
    const QString portable = shortcuts.first().toString(QKeySequence::PortableText);
    // The text reads back as the same keys: nothing in it is garbage.
    QCOMPARE(QKeySequence(portable, QKeySequence::PortableText), shortcuts.first());
    if (action != ORQ_VANTOR_HELP_ACTION)
      QCOMPARE(created->toolTip(),
               orq_get_menu_text_without_symbol(action_of(action)) + QLatin1String(" - ") + portable);
    // Pressed in a window that has nothing else, the first key combination
    // triggers the action.
    window.addAction(created);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy triggered(created, &QAction::triggered);
    const int combination = shortcuts.first()[0];
    QTest::keyClick(&window, Qt::Key(combination & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(combination & int(Qt::KeyboardModifierMask)));
    QCOMPARE(triggered.count(), 1);
  }

  void spelled_out_keys_data()
  {
    QTest::addColumn<int>("action");
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("next page") << int(ORQ_NEXT_PAGE_ACTION) << QKeySequence(Qt::CTRL + Qt::Key_PageDown);
    QTest::newRow("previous page") << int(ORQ_PREVIOUS_PAGE_ACTION)
                                   << QKeySequence(Qt::CTRL + Qt::Key_PageUp);
    QTest::newRow("extend selection")
        << int(ORQ_EXTEND_SELECTION_ACTION) << QKeySequence(Qt::SHIFT + Qt::Key_Right);
    QTest::newRow("bring to front") << int(ORQ_GED_BRING_TO_FRONT_ACTION)
                                    << QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Up);
    QTest::newRow("edit properties") << int(ORQ_EDIT_PROPERTIES_ACTION)
                                     << QKeySequence(Qt::ALT + Qt::Key_Enter);
  }

  void spelled_out_keys()
  {
    QFETCH(int, action);
    QFETCH(QKeySequence, keys);
    QObject owner;
    const QAction* created = orq_create_action(action_of(action), &owner);
    QCOMPARE(created->shortcut(), keys);
    QVERIFY(created->toolTip().endsWith(QLatin1String(" - ") + keys.toString(QKeySequence::PortableText)));
  }

  void locate_actions_carry_their_target_tools_icons()
  {
    QObject owner;
    QSet<uint> pictures;
    int count = 0;
    for (int value = 1; value <= ORQ_ACTION_COUNT; ++value) {
      const QString name = orq_get_action_enum_string(action_of(value));
      if (!name.startsWith(QLatin1String("ORQ_LOCATE_IN_")))
        continue;
      ++count;
      QAction* locate = orq_create_action(action_of(value), &owner);
      QVERIFY2(!locate->icon().isNull(), qPrintable(name));
      const QImage image = locate->icon().pixmap(16, 16).toImage();
      pictures.insert(
          qHash(QByteArray(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes()))));
    }
    QCOMPARE(count, 13);
    QCOMPARE(pictures.size(), 13);
  }

  void partition_planner_runs_its_tcl_command()
  {
    QObject owner;
    QAction* planner = orq_create_action(ORQ_START_PARTITION_PLANNER_ACTION, &owner);
    auto* tcl_action = qobject_cast<ORQ_TCL_ACTION*>(planner);
    QVERIFY(tcl_action);
    QCOMPARE(QString::fromStdString(tcl_action->get_tcl_function()),
             QString::fromLatin1(ORQ_ACTION_TCL_FUNCTION_START_PARTITION_PLANNER));
    GEN_TCL& tcl = gen_tcl();
    QCOMPARE(tcl.eval(QStringLiteral("namespace eval ::vantor::partition_planner {"
                                     " proc start {} { incr ::planner_starts } }; set ::planner_starts 0")),
             int(GEN_TCL::OK));
    planner->trigger();
    planner->trigger();
    QCOMPARE(tcl.get_var(QStringLiteral("planner_starts")), QStringLiteral("2"));
    tcl.eval(QStringLiteral("namespace delete ::vantor::partition_planner"));
  }
};

ORQ_TEST_REGISTER(TST_ACTIONS);
#include "tst_actions.moc"
