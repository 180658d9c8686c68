#pragma once

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

// Sets or removes environment variables for a scope; the old values come
// back when it ends.
class EnvScope
{
public:
    EnvScope() = default;
    EnvScope(const EnvScope&) = delete;
    EnvScope& operator=(const EnvScope&) = delete;
    ~EnvScope()
    {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it)
            it->second ? qputenv(it->first, *it->second) : qunsetenv(it->first);
    }

    // A null value removes the variable.
    void Set(const char* name, const std::optional<QByteArray>& value)
    {
        m_saved.emplace_back(name, qEnvironmentVariableIsSet(name)
                                       ? std::optional<QByteArray>(qgetenv(name))
                                       : std::nullopt);
        value ? qputenv(name, *value) : qunsetenv(name);
    }

private:
    std::vector<std::pair<const char*, std::optional<QByteArray>>> m_saved;
};
