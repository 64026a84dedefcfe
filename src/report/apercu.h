#pragma once

class TRapport;

/// How a finished report reaches the user: the preview window, or what stands for it.
class IApercu {
 public:
  virtual ~IApercu() = default;

  /// Modal: returns when the preview is closed.
  virtual void Afficher(TRapport& rapport) = 0;
};
