// The working on paper, with the head and the foot of the report.
#pragma once

#include "print/PageWriter.h"
#include "print/Print.h"
#include "working/WorkingLine.h"

/// The lines must outlive the document.
Print::Document WorkingPages(const frmMain& main, const WorkingLines& lines);

/// Goes on with the working on a page of its own; the writer stands on the last page of another document.
void AppendWorking(PageWriter& page, const WorkingLines& lines);
