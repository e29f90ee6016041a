#include "wayland/SelectionWays.h"

#include <ext-data-control-v1-client-protocol.h>

namespace vantorel {
namespace {

using Manager = WaylandObject<ext_data_control_manager_v1>;
using Device = WaylandObject<ext_data_control_device_v1>;
using Source = WaylandObject<ext_data_control_source_v1>;

/// The protocol was zwlr_data_control_unstable_v1 before, with the same requests and events. Many
/// compositors know only that name.
const wl_interface& predecessorInterface()
{
    static const wl_interface interface = [] {
        wl_interface copy = ext_data_control_manager_v1_interface;
        copy.name = "zwlr_data_control_manager_v1";
        return copy;
    }();
    return interface;
}

Manager bindManager(const WaylandConnection& connection)
{
    for (const wl_interface* interface :
         {&ext_data_control_manager_v1_interface, &predecessorInterface()}) {
        if (auto manager = connection.bind<ext_data_control_manager_v1>(*interface)) return manager;
    }
    return nullptr;
}

class DataControlWay final : public SelectionWay {
public:
    DataControlWay(WaylandConnection& connection, const std::vector<OfferedForm>& forms)
        : _connection(connection),
          _forms(forms),
          _manager(bindManager(connection)),
          _seat(connection.bind<wl_seat>(wl_seat_interface))
    {
    }

    [[nodiscard]] bool isPossible() const { return _manager != nullptr && _seat != nullptr; }

    bool take(WaylandConnection::Clock::time_point deadline) override
    {
        _device.reset(ext_data_control_manager_v1_get_data_device(_manager.get(), _seat.get()));
        listenToDevice();
        // The first event is about the selection of before.
        if (!_connection.waitForCompositor(deadline)) return false;
        _isConfirmed = false;
        _source.reset(ext_data_control_manager_v1_create_data_source(_manager.get()));
        listenToSource();
        for (const OfferedForm& form : _forms)
            ext_data_control_source_v1_offer(_source.get(), form.type.c_str());
        ext_data_control_device_v1_set_selection(_device.get(), _source.get());
        return _connection.waitUntil([this] { return _isConfirmed || _isLost; }, deadline) &&
               !_isLost;
    }

    [[nodiscard]] bool isLost() const override { return _isLost; }

private:
    using DeviceObject = ext_data_control_device_v1;
    using OfferObject = ext_data_control_offer_v1;
    using SourceObject = ext_data_control_source_v1;

    void listenToDevice()
    {
        static const ext_data_control_device_v1_listener listener{
            [](void*, DeviceObject*, OfferObject*) {},
            [](void* data, DeviceObject*, OfferObject* offer) {
                if (offer == nullptr) return;
                ext_data_control_offer_v1_destroy(offer);
                static_cast<DataControlWay*>(data)->_isConfirmed = true;
            },
            [](void* data, DeviceObject*) { static_cast<DataControlWay*>(data)->_isLost = true; },
            [](void*, DeviceObject*, OfferObject* offer) {
                if (offer != nullptr) ext_data_control_offer_v1_destroy(offer);
            }};
        ext_data_control_device_v1_add_listener(_device.get(), &listener, this);
    }

    void listenToSource()
    {
        static const ext_data_control_source_v1_listener listener{
            [](void* data, SourceObject*, const char* type, std::int32_t file) {
                serve(static_cast<DataControlWay*>(data)->_forms, type, file);
            },
            [](void* data, SourceObject*) { static_cast<DataControlWay*>(data)->_isLost = true; }};
        ext_data_control_source_v1_add_listener(_source.get(), &listener, this);
    }

    WaylandConnection& _connection;
    const std::vector<OfferedForm>& _forms;
    Manager _manager;
    WaylandObject<wl_seat> _seat;
    Device _device;
    Source _source;
    bool _isConfirmed = false;
    bool _isLost = false;
};

}  // namespace

std::unique_ptr<SelectionWay> dataControlWay(WaylandConnection& connection,
                                             const std::vector<OfferedForm>& forms)
{
    auto way = std::make_unique<DataControlWay>(connection, forms);
    if (!way->isPossible()) return nullptr;
    return way;
}

}  // namespace vantorel
