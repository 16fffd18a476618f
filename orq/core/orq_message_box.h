#pragma once
// The suite's modal message box for texts that are not catalogue messages.
#include "gen_message_service.h"
#include "orq_export.h"

#include <QMessageBox>

// Shows text in a modal box whose icon follows the prompt type and returns
// the button pressed. In regression-test mode nobody is there to answer, so
// it returns the first of the buttons at once. The box's object name is
// "orq_message_box".
ORQ_EXPORT QMessageBox::StandardButton
orq_message_box(const QString& text, GEN_PROMPT_TYPE type, QWidget* parent = nullptr,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok);
