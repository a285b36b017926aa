#include "table/window/help/HelpAndAboutWindows.h"

namespace Parlino {

void HelpAndAboutWindows::ShowModel() {
  if (help_ == nullptr && frmHelp.Visible) help_ = std::make_unique<HelpWindow>(pending_, table_);
  if (help_ != nullptr) help_->ShowModel(frmHelp);
  if (!frmAbout.Loaded) return about_.reset();
  if (about_ == nullptr) about_ = std::make_unique<AboutWindow>(pending_, &table_);
  about_->ShowModel(frmAbout);
}

void HelpAndAboutWindows::Close(WindowName window) {
  if (window == WindowName::frmAbout) about_.reset();
  if (window == WindowName::frmHelp) help_.reset();
}

}  // namespace Parlino
