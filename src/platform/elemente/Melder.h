#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

/// Follows the rule, if there is one.
inline void rufe(const std::function<void()>& regel)
{
    if (regel) {
        regel();
    }
}

/// Keeps a subscription alive; it ends when the handle is destroyed.
using Abonnement = std::shared_ptr<void>;

/// A change notification that others can subscribe to, for as long as they keep the handle. Whoever subscribes or goes
/// while it is told, is told from the next time on or no more.
///
///     Melder<> geändert;
///     const Abonnement bleibt = geändert.abonniere([] { zeichne(); });
///     geändert.melde();
template <class... A> class Melder {
public:
    using Ruf = std::function<void(A...)>;

    [[nodiscard]] Abonnement abonniere(Ruf ruf)
    {
        auto eintrag = std::make_shared<Ruf>(std::move(ruf));
        m_rufe.push_back(eintrag);
        return eintrag;
    }

    void melde(A... werte)
    {
        std::erase_if(m_rufe, [](const auto& ruf) { return ruf.expired(); });
        const auto rufe = m_rufe; // a call may subscribe or unsubscribe
        for (const auto& schwach : rufe) {
            if (const auto ruf = schwach.lock()) {
                (*ruf)(werte...);
            }
        }
    }

private:
    std::vector<std::weak_ptr<Ruf>> m_rufe;
};
