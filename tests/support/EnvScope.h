#pragma once

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

// Sets or removes environment variables for a scope; the old values come
// back when it ends, in reverse order.
class EnvScope
{
public:
    EnvScope() = default;
    EnvScope(const EnvScope&) = delete;
    EnvScope& operator=(const EnvScope&) = delete;
    ~EnvScope()
    {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it) {
            if (it->second)
                qputenv(it->first, *it->second);
            else
                qunsetenv(it->first);
        }
    }

    void Set(const char* name, const QByteArray& value)
    {
        save(name);
        qputenv(name, value);
    }
    void Unset(const char* name)
    {
        save(name);
        qunsetenv(name);
    }

private:
    void save(const char* name)
    {
        m_saved.emplace_back(name, qEnvironmentVariableIsSet(name)
                                       ? std::optional<QByteArray>(qgetenv(name))
                                       : std::nullopt);
    }

    std::vector<std::pair<const char*, std::optional<QByteArray>>> m_saved;
};
