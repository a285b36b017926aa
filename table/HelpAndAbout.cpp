#include "table/HelpAndAbout.h"

#include "platform/Platform.h"
#include "table/ErrorReport.h"
#include "table/TableView.h"

namespace Parlino {

void MnuRules_Click() {
  ReportErrors("MnuRules_Click",
               [] { ThePlatform().MsgBox("Helpfile is not available", ApplicationTitle, false); });
}

void MnuAbout_Click() {
  ThePlatform().MsgBox(JoinText({ApplicationTitle, "\nVersion ", PARLINO_VERSION,
                                 "\n\nParlino - a  challenging and enjoyable card game ."}),
                       ApplicationTitle, false);
}

}  // namespace Parlino
