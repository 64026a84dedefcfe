#pragma once

class TRapport;

/// How a finished report reaches the user: the preview window, or what stands for it.
class IApercu {
 public:
  virtual ~IApercu() = default;

  /// Modal: returns when the preview is closed. True when the report went to a printer or into a PDF.
  virtual bool Afficher(TRapport& rapport) = 0;
};
