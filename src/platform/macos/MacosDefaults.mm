#include "platform/macos/MacosDefaults.h"

#include "platform/macos/CFOwned.h"
#include "platform/macos/FoundationText.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace tavrik::macos {

namespace {

constexpr const char* kValue = "value";
NSString* const kValueKey = @"value";

/// Through the binary form of a property list, which keeps each type.
std::optional<plist::Value> toValue(id object) {
    NSData* const data = [NSPropertyListSerialization dataWithPropertyList:@{kValueKey : object}
                                                                    format:NSPropertyListBinaryFormat_v1_0
                                                                   options:0
                                                                     error:nil];
    const auto* const bytes = static_cast<const std::uint8_t*>(data.bytes);
    auto list = plist::parse(ByteView(bytes, data.length));
    plist::Value* const value = list ? list->find(kValue) : nullptr;
    return value ? std::optional(std::move(*value)) : std::nullopt;
}

Result<id> toObject(plist::Value value) {
    const auto bytes = plist::serialize(plist::Dictionary{{kValue, std::move(value)}}, plist::Format::binary);
    if (!bytes)
        return bytes.error();
    NSData* const data = [NSData dataWithBytes:bytes->data() length:bytes->size()];
    NSError* error = nil;
    NSDictionary* const list = [NSPropertyListSerialization propertyListWithData:data
                                                                         options:NSPropertyListImmutable
                                                                          format:nil
                                                                           error:&error];
    if (!list)
        return Error{toString(error.localizedDescription)};
    return Result<id>(list[kValueKey]);
}

/// One domain of the current user on every host, as a file in the home's Library/Preferences has it.
class Domain {
public:
    explicit Domain(const std::string& name) : m_name(toNSString(name)) {}

    id copyOf(NSString* key) const {
        return CFBridgingRelease(CFPreferencesCopyValue((__bridge CFStringRef)key, name(),
                                                        kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    }

    /// Nil removes the key.
    void set(NSString* key, id value) const {
        CFPreferencesSetValue((__bridge CFStringRef)key, (__bridge CFPropertyListRef)value, name(),
                              kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
    }

    NSArray<NSString*>* keys() const {
        return CFBridgingRelease(
            CFPreferencesCopyKeyList(name(), kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    }

    [[nodiscard]] bool synchronise() const {
        return CFPreferencesSynchronize(name(), kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
    }

private:
    CFStringRef name() const { return (__bridge CFStringRef)m_name; }

    NSString* const m_name;
};

Error refused(const std::string& domain) {
    return {"The preferences service did not take the change of " + domain};
}

} // namespace

MacosDefaults::MacosDefaults(std::string domain, const MacPath& home)
    : m_domain(std::move(domain)),
      m_file(home / "Library/Preferences" / (m_domain + ".plist")) {}

std::optional<plist::Value> MacosDefaults::value(std::string_view key) const {
    @autoreleasepool {
        NSString* const text = toNSString(key);
        id const object = text ? Domain(m_domain).copyOf(text) : nil;
        return object ? toValue(object) : std::nullopt;
    }
}

Status MacosDefaults::set(std::string_view key, std::optional<plist::Value> value) {
    @autoreleasepool {
        NSString* const text = toNSString(key);
        if (!text)
            return Error{"A key of the defaults is no text", EINVAL};
        id object = nil;
        if (value) {
            const auto made = toObject(std::move(*value));
            if (!made)
                return made.error();
            object = *made;
        }
        const Domain domain(m_domain);
        id const before = domain.copyOf(text);
        domain.set(text, object);
        if (domain.synchronise())
            return Done{};
        domain.set(text, before);
        return refused(m_domain);
    }
}

Status MacosDefaults::removeAll() {
    @autoreleasepool {
        const Domain domain(m_domain);
        for (NSString* key in domain.keys())
            domain.set(key, nil);
        if (!domain.synchronise())
            return refused(m_domain);
        // The service leaves a file without keys.
        if (::unlink(m_file.string().c_str()) != 0 && errno != ENOENT) {
            const std::error_code reason(errno, std::generic_category());
            return Error{m_file.string() + ": " + reason.message(), reason.value()};
        }
        return Done{};
    }
}

void MacosDefaults::flushDockDomain() {
    CFPreferencesAppSynchronize(CFSTR("com.apple.dock"));
}

} // namespace tavrik::macos
