#pragma once

#include <memory>
#include <utility>

/// The place of a screen at the one who opens it. `neu` makes a fresh object and drops the one of the last
/// opening, which has been unloaded by then; a screen that unloads itself thus outlives its own last call.
///
///     Bildschirmplatz<frmStammdaten> m_stammdaten;
///     folge.öffneStatt(*this, m_stammdaten.neu(kernID, istNeu));
template <class F> class Bildschirmplatz {
public:
    template <class... A> F& neu(A&&... werte)
    {
        m_bildschirm = std::make_unique<F>(std::forward<A>(werte)...);
        return *m_bildschirm;
    }

    F* da() const { return m_bildschirm.get(); }

private:
    std::unique_ptr<F> m_bildschirm;
};
