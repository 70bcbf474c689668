#pragma once

class DocumentImpl;
class QWidget;

/// Shows, in a window of its own, what is known about the class of the selected parts: its group and what each of its
/// properties is for. Nothing is shown without a selection.
void showPartHelp(QWidget* parent, const DocumentImpl& document);
