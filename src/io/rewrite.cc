#include "io/rewrite.h"

namespace ZQ7Standard {

void RewriteFile(FileRewriter& rewriter, TextView path, std::string_view bytes) {
  const auto rewrite = rewriter.Begin(path);
  rewrite->Write(bytes);
  rewrite->Sync();
  rewrite->Close();
  rewrite->Replace();
  rewrite->SyncFolder();
}

}  // namespace ZQ7Standard
