// Linux: on Wayland, a shell integration of the agent's own that makes the
// tray pop-up a layer surface and leaves every other window to xdg-shell.
//
// Qt 5 takes one shell integration per process (QT_WAYLAND_SHELL_INTEGRATION,
// read once); LayerShellQt's alone would make the wizard and every dialog
// layer surfaces too. This one loads both and chooses per window. It uses
// Qt's private Wayland client interfaces, which are tied to the Qt version
// the agent is built against (as LayerShellQt's own plugin is).
#include <QtGui/private/qguiapplication_p.h>
#include <QtWaylandClient/private/qwaylanddisplay_p.h>
#include <QtWaylandClient/private/qwaylandintegration_p.h>
#include <QtWaylandClient/private/qwaylandshellintegration_p.h>
#include <QtWaylandClient/private/qwaylandshellintegrationfactory_p.h>
#include <QtWaylandClient/private/qwaylandshellintegrationplugin_p.h>
#include <QtWaylandClient/private/qwaylandwindow_p.h>
#include <LayerShellQt/Window>

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <QtPlugin>

#include <memory>

#include "logging/logger.h"
#include "ui-agent/tray/popup-surface.h"

namespace popup_surface {

namespace {

namespace wl = QtWaylandClient;
using LayerWindow = LayerShellQt::Window;

const char kShellVariable[] = "QT_WAYLAND_SHELL_INTEGRATION";
// Ours first; should it fail to load, Qt goes on to the usual shell.
const char kShells[] = "nimbra-popup-shell;xdg-shell";
// A window marked to be a layer surface.
const char kLayerProperty[] = "_nimbra_layer_surface";

bool layerShellActive = false;

LayerWindow::Anchors toAnchors(Qt::Edges edges) {
  LayerWindow::Anchors a;
  if (edges & Qt::TopEdge) a |= LayerWindow::AnchorTop;
  if (edges & Qt::BottomEdge) a |= LayerWindow::AnchorBottom;
  if (edges & Qt::LeftEdge) a |= LayerWindow::AnchorLeft;
  if (edges & Qt::RightEdge) a |= LayerWindow::AnchorRight;
  return a;
}

Qt::Edges toEdges(LayerWindow::Anchors a) {
  Qt::Edges edges;
  if (a & LayerWindow::AnchorTop) edges |= Qt::TopEdge;
  if (a & LayerWindow::AnchorBottom) edges |= Qt::BottomEdge;
  if (a & LayerWindow::AnchorLeft) edges |= Qt::LeftEdge;
  if (a & LayerWindow::AnchorRight) edges |= Qt::RightEdge;
  return edges;
}

void setLayer(QWindow* window, const layer_placement::Placement& placement, LayerWindow::Layer layer,
              LayerWindow::KeyboardInteractivity keyboard) {
  window->setProperty(kLayerProperty, true);
  LayerWindow* surface = LayerWindow::get(window);
  surface->setScope(QStringLiteral("nimbra-backup-popup"));
  surface->setLayer(layer);
  surface->setKeyboardInteractivity(keyboard);
  surface->setExclusiveZone(0);
  surface->setAnchors(toAnchors(placement.anchors));
  surface->setMargins(placement.margins);
}

bool markedLayer(QWindow* window) {
  return window && window->property(kLayerProperty).toBool();
}

class PopupShellIntegration : public wl::QWaylandShellIntegration {
 public:
  bool initialize(wl::QWaylandDisplay* display) override {
    wl::QWaylandShellIntegration::initialize(display);
    xdg_.reset(wl::QWaylandShellIntegrationFactory::create(QStringLiteral("xdg-shell"), display));
    if (!xdg_) {
      LOG_ERROR(vlog::kDefaultComponent, "Wayland: no xdg-shell; the agent's windows take Qt's shell");
      return false;
    }
    layer_.reset(wl::QWaylandShellIntegrationFactory::create(QStringLiteral("layer-shell"), display));
    layerShellActive = layer_ != nullptr;
    LOG_INFO(
        vlog::kDefaultComponent, "Wayland: the tray pop-up is %s",
        layer_ ? "a layer surface" : "a framed window (no layer-shell in the compositor or no LayerShellQt)");
    return true;
  }

  wl::QWaylandShellSurface* createShellSurface(wl::QWaylandWindow* window) override {
    if (layer_ && wantsLayer(window)) return layer_->createShellSurface(window);
    return xdg_->createShellSurface(window);
  }

  void handleKeyboardFocusChanged(wl::QWaylandWindow* newFocus, wl::QWaylandWindow* oldFocus) override {
    // xdg-shell tells activation for its own windows only; a layer
    // surface's is told here.
    const bool newLayer = newFocus && markedLayer(newFocus->window());
    const bool oldLayer = oldFocus && markedLayer(oldFocus->window());
    xdg_->handleKeyboardFocusChanged(newLayer ? nullptr : newFocus, oldLayer ? nullptr : oldFocus);
    if (newLayer) m_display->handleWindowActivated(newFocus);
    if (oldLayer) m_display->handleWindowDeactivated(oldFocus);
  }

  void* nativeResourceForWindow(const QByteArray& resource, QWindow* window) override {
    return xdg_->nativeResourceForWindow(resource, window);
  }

 private:
  // The marked pop-up, and a menu or tool tip opened from a layer surface:
  // an xdg pop-up cannot have a layer surface as its parent here, so it
  // becomes a layer surface beside its parent, anchored like it.
  static bool wantsLayer(wl::QWaylandWindow* window) {
    QWindow* q = window->window();
    if (markedLayer(q)) return true;
    wl::QWaylandWindow* parent = window->transientParent();
    if (!parent || !markedLayer(parent->window())) return false;
    const QRect parentRect = parent->window()->geometry();
    LayerWindow* parentSurface = LayerWindow::get(parent->window());
    const layer_placement::Placement parentPlacement{toEdges(parentSurface->anchors()),
                                                     parentSurface->margins(), parentRect.topLeft()};
    const QRect rect = q->geometry();
    setLayer(q,
             layer_placement::nested_in(parentPlacement, parentRect.size(),
                                        rect.topLeft() - parentRect.topLeft(), rect.size()),
             LayerWindow::LayerOverlay,
             q->type() == Qt::ToolTip ? LayerWindow::KeyboardInteractivityNone
                                      : LayerWindow::KeyboardInteractivityOnDemand);
    return true;
  }

  std::unique_ptr<wl::QWaylandShellIntegration> xdg_, layer_;
};

}  // namespace

// For the plugin below.
QtWaylandClient::QWaylandShellIntegration* newShellIntegration() {
  return new PopupShellIntegration();
}

void prepare_application() {
  if (qEnvironmentVariableIsEmpty(kShellVariable)) qputenv(kShellVariable, kShells);
}

Kind kind() {
  if (QGuiApplication::platformName() != QLatin1String("wayland")) return Kind::Positioned;
  // Qt loads the shell when it makes the first window; it is asked here
  // before that.
  static const bool loaded = [] {
    auto* integration = static_cast<wl::QWaylandIntegration*>(QGuiApplicationPrivate::platformIntegration());
    return integration && integration->shellIntegration();
  }();
  return loaded && layerShellActive ? Kind::Layer : Kind::Framed;
}

void mark_layer(QWindow* window, const layer_placement::Placement& placement) {
  setLayer(window, placement, LayerWindow::LayerTop, LayerWindow::KeyboardInteractivityOnDemand);
  LayerWindow::get(window)->setDesiredOutput(window->screen());
}

}  // namespace popup_surface

// Found by Qt under the name in popup-shell.json (a static plugin).
class NimbraPopupShellPlugin : public QtWaylandClient::QWaylandShellIntegrationPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QWaylandShellIntegrationFactoryInterface_iid FILE "popup-shell.json")
 public:
  QtWaylandClient::QWaylandShellIntegration* create(const QString&, const QStringList&) override {
    return popup_surface::newShellIntegration();
  }
};

Q_IMPORT_PLUGIN(NimbraPopupShellPlugin)

#include "popup-surface-posix.moc"
