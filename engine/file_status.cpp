#include "engine/file_status.h"

#include "engine/notices.h"

std::string FileStatus::FirstMessage() const {
  return Messages.empty() ? std::string() : Messages.front().Title + ": " + Messages.front().Text;
}

bool ShowFileStatus(Game& g, const FileStatus& status) {
  for (const FileMessage& m : status.Messages) ShowMessage(g, m.Title, m.Text);
  return status.Ok;
}
