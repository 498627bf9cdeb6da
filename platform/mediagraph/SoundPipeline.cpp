// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SoundPipeline.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/LedInSource.h"
#include "platform/mediagraph/SampleSource.h"

#include <cmath>
#include <string>

namespace mediagraph {
namespace {

// How much sound goes to the sound server at once. By default a quarter of it, which costs a third more.
constexpr gint64 kPieceMicroseconds = 40'000;
// How much sound the sound server or the card holds. By default a tenth of it, and the sound has a hole when
// the workstation, or one of the two programs, stands still for longer. PipeWire's sink has a way of its own.
constexpr gint64 kBufferMicroseconds = 2'000'000;

GstElement* newElement(const std::string& kind) {
    GstElement* element = gst_element_factory_make(kind.c_str(), nullptr);
    if (element == nullptr)
        throw basic::RuntimeError(basic::kMediaNoHardware, "GStreamer has no element " + kind + ".");
    return element;
}

bool hasProperty(GstElement* element, const char* name) {
    return g_object_class_find_property(G_OBJECT_GET_CLASS(element), name) != nullptr;
}

// What plays is not to go on aloud at another device.
void stayAtDevice(GstElement* pipeWireSink) {
    const GstRef<GstStructure> properties(
        gst_structure_new("properties", "node.dont-reconnect", G_TYPE_STRING, "true", nullptr));
    g_object_set(pipeWireSink, "stream-properties", properties.get(), nullptr);
}

GstElement* newSink(const OutputDevice& device) {
    GstElement* sink = newElement(device.element);
    const char* property = hasProperty(sink, "device") ? "device" : "target-object";
    if (!device.address.empty())
        g_object_set(sink, property, device.address.c_str(), nullptr);
    if (hasProperty(sink, "buffer-time"))
        g_object_set(sink, "buffer-time", kBufferMicroseconds, nullptr);
    if (device.element == "pulsesink")
        g_object_set(sink, "latency-time", kPieceMicroseconds, nullptr);
    if (device.element == "pipewiresink")
        stayAtDevice(sink);
    return sink;
}

// GStreamer's own threads may hold the bus and the sink longer than the pipeline lives, so these two own what
// they touch.
using MessageCame = std::function<void()>;
using MayHaveMoved = std::shared_ptr<std::atomic<bool>>;

template <typename Object>
void destroy(gpointer object) {
    std::default_delete<Object>()(static_cast<Object*>(object));
}

// Messages stay on the bus for the playing thread; this only wakes it.
GstBusSyncReply wake(GstBus*, GstMessage*, gpointer user) {
    (*static_cast<MessageCame*>(user))();
    return GST_BUS_PASS;
}

void noteMove(GstElement*, GParamSpec*, gpointer user) {
    **static_cast<MayHaveMoved*>(user) = true;
}

} // namespace

SoundPipeline::SoundPipeline(std::shared_ptr<const Samples> samples, double fromSeconds,
                             const OutputDevice& device, std::function<void()> messageCame)
    : m_from(fromSeconds), m_rate(samples->rate),
      m_progress(std::make_shared<FeedingProgress>(std::lround(fromSeconds * samples->rate))),
      m_pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new(nullptr)))), m_sink(add(newSink(device))) {
    addSource(std::move(samples), device);
    m_bus.reset(gst_pipeline_get_bus(GST_PIPELINE(m_pipeline.get())));
    gst_bus_set_sync_handler(m_bus.get(), wake, new MessageCame(std::move(messageCame)),
                             destroy<MessageCame>);
    if (hasProperty(m_sink, "current-device"))
        g_signal_connect_data(
            m_sink, "notify::current-device", G_CALLBACK(noteMove), new MayHaveMoved(m_mayHaveMoved),
            [](gpointer user, GClosure*) { destroy<MayHaveMoved>(user); }, GConnectFlags{});
}

// Sound servers take every rate and number of channels, and convert better; only cards need help with it.
void SoundPipeline::addSource(std::shared_ptr<const Samples> samples, const OutputDevice& device) {
    const bool isPipeWire = device.element == "pipewiresink";
    GstElement* source = add(isPipeWire ? newLedInSource(std::move(samples), m_progress)
                                        : newSampleSource(std::move(samples), m_progress));
    if (device.element != "alsasink") {
        gst_element_link(source, m_sink);
        return;
    }
    GstElement* convert = add(newElement("audioconvert"));
    GstElement* resample = add(newElement("audioresample"));
    gst_element_link_many(source, convert, resample, m_sink, nullptr);
}

GstElement* SoundPipeline::add(GstElement* element) {
    gst_bin_add(GST_BIN(m_pipeline.get()), element);
    return element;
}

SoundPipeline::~SoundPipeline() {
    gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

void SoundPipeline::start() {
    gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING);
}

bool SoundPipeline::isPlaying() {
    return gst_element_get_state(m_pipeline.get(), nullptr, nullptr, 0) == GST_STATE_CHANGE_SUCCESS;
}

std::optional<double> SoundPipeline::position() {
    gint64 time = 0;
    const GstClockTime begin = m_progress->begin;
    if (!gst_element_query_position(m_pipeline.get(), GST_FORMAT_TIME, &time) ||
        static_cast<GstClockTime>(time) < begin)
        return std::nullopt;
    return m_from +
           static_cast<double>(static_cast<GstClockTime>(time) - begin) / static_cast<double>(GST_SECOND);
}

double SoundPipeline::handedOut() const {
    return static_cast<double>(m_progress->handedOut) / m_rate;
}

GstRef<GstMessage> SoundPipeline::message() {
    return GstRef<GstMessage>(gst_bus_pop(m_bus.get()));
}

std::string SoundPipeline::currentDevice() const {
    if (!hasProperty(m_sink, "current-device"))
        return {};
    gchar* name = nullptr;
    g_object_get(m_sink, "current-device", &name, nullptr);
    const GstRef<gchar> owned(name);
    return name == nullptr ? std::string() : std::string(name);
}

} // namespace mediagraph
