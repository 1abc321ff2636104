// See Library.h.
#include "desktop/windows/Library.h"

#include "desktop/windows/AboutView.h"
#include "desktop/windows/DigitsView.h"
#include "desktop/windows/GraphSettingsView.h"
#include "desktop/windows/GraphView.h"
#include "desktop/windows/IrregView.h"
#include "desktop/windows/MannParamView.h"
#include "desktop/windows/QtHelpViewer.h"
#include "desktop/windows/QtPrinter.h"
#include "desktop/windows/SectionView.h"
#include "desktop/windows/TableSettingsView.h"
#include "desktop/windows/TableView.h"

namespace {

template <class FormType, class View>
QWidget* Make(Form& form, QWidget* parent) {
  auto* const shown = dynamic_cast<FormType*>(&form);
  return shown == nullptr ? nullptr : new View(*shown, parent);
}

constexpr QWidget* (*Makers[])(Form&, QWidget*) = {Make<frmDigits, DigitsView>,
                                                   Make<frmMannParam, MannParamView>,
                                                   Make<frmGraphSettings, GraphSettingsView>,
                                                   Make<frmGraph, GraphView>,
                                                   Make<frmTableSettings, TableSettingsView>,
                                                   Make<frmTable, TableView>,
                                                   Make<frmIrreg, IrregView>,
                                                   Make<frmSection, SectionView>,
                                                   Make<frmAbout, AboutView>};

QWidget* MakeView(Form& form, QWidget* parent) {
  for (const auto make : Makers) {
    if (QWidget* const view = make(form, parent)) return view;
  }
  qFatal("No view for %s", form.Name().c_str());
}

}  // namespace

const OtherWindows flumewiseWindows{
    MakeView, [] { return std::unique_ptr<PrinterDialog>(std::make_unique<QtPrinterDialog>()); },
    [] { return std::unique_ptr<HelpViewer>(std::make_unique<QtHelpViewer>(QtHelpViewer::Paths())); }};
