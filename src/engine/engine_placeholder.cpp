// Replaced as the engine layer grows.
namespace quovara { int engineLayerAnchor() { return 0; } } // namespace quovara
