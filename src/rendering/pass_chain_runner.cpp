#include "rendering/pass_chain_runner.h"

#include "base/pixel_limits.h"
#include "rendering/image_transfer.h"
#include "rendering/rendering_log.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

using Picture = PassChain::Picture;

constexpr qint64 kWorthGivingBack = 16 * 1024 * 1024; // bytes; less stays at hand for the next picture

/// Null for a picture that the chain makes.
const QImage *sourceImage(const PassChain &chain, Picture picture)
{
    const auto *source = std::get_if<PassChain::Source>(&chain.steps()[qsizetype(picture)].work);
    return source ? &source->image : nullptr;
}

/// The pictures that a step reads from the GPU.
QList<Picture> inputsOf(const PassChain &chain, const PassChain::Step &step)
{
    if (const auto *pass = std::get_if<PassChain::Pass>(&step.work))
        return pass->inputs;
    QList<Picture> inputs;
    if (const auto *stack = std::get_if<PassChain::Stack>(&step.work)) {
        for (const Picture input : stack->inputs) {
            if (!sourceImage(chain, input))
                inputs.append(input);
        }
    }
    return inputs;
}

/// One run of a chain. The context is current while it carries steps out.
class PassChainRun
{
public:
    PassChainRun(FilterPassDrawer &passes, const PassChain &chain, Picture result)
        : m_passes(passes)
        , m_chain(chain)
        , m_result(qsizetype(result))
        , m_lastUse(chain.steps().size(), kNever)
        , m_made(size_t(chain.steps().size()))
    {
        m_lastUse[m_result] = m_result;
        for (qsizetype i = m_result; i >= 0; --i) {
            if (m_lastUse[i] == kNever)
                continue;
            for (const Picture input : inputsOf(chain, chain.steps()[i]))
                m_lastUse[qsizetype(input)] = std::max(m_lastUse[qsizetype(input)], i);
        }
    }

    bool fitsShaders() const
    {
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            const PassChain::Step &step = m_chain.steps()[i];
            if (m_lastUse[i] == kNever)
                continue;
            const auto *pass = std::get_if<PassChain::Pass>(&step.work);
            if (step.size.isEmpty() || (pass && !fitsShader(*pass)))
                return false;
        }
        return true;
    }

    /// Links all programs first.
    bool carryOut()
    {
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            if (m_lastUse[i] != kNever && !hasPrograms(m_chain.steps()[i]))
                return false;
        }
        for (qsizetype i = 0; i < m_chain.steps().size(); ++i) {
            if (m_lastUse[i] == kNever)
                continue;
            m_made[size_t(i)] = std::visit([&](const auto &work) { return make(work, m_chain.steps()[i].size); },
                                           m_chain.steps()[i].work);
            if (!m_made[size_t(i)])
                return false;
            letGoOfInputs(i);
        }
        return true;
    }

    QImage read() const { return readFramebuffer(m_passes.functions(), *m_made[size_t(m_result)]); }

private:
    using Framebuffer = std::unique_ptr<QOpenGLFramebufferObject>;
    static constexpr qsizetype kNever = -1;

    bool fitsShader(const PassChain::Pass &pass) const
    {
        const FilterShaderDescriptor *descriptor = m_passes.catalog().find(pass.shaderId);
        const QString name = pass.shaderId.startsWith("fx/"_L1) ? pass.shaderId.sliced(3) : pass.shaderId;
        if (!descriptor) {
            qCWarning(lcTexture) << "Unknown filter shader" << name;
            return false;
        }
        if (pass.inputs.size() != descriptor->samplers.size()
            || pass.uniforms.size() != descriptor->uniforms.size() * kUniformVec4Bytes) {
            qCWarning(lcTexture) << "Filter shader invocation mismatch" << name << "samplers expected"
                                 << descriptor->samplers.size() << "got" << pass.inputs.size() << "uniforms expected"
                                 << descriptor->uniforms.size() << "got" << pass.uniforms.size() / kUniformVec4Bytes;
            return false;
        }
        return true;
    }

    bool hasPrograms(const PassChain::Step &step)
    {
        if (const auto *pass = std::get_if<PassChain::Pass>(&step.work))
            return m_passes.filterProgram(pass->shaderId) != nullptr;
        return !std::holds_alternative<PassChain::Stack>(step.work) || m_passes.filterProgram(u"textureCopy"_s);
    }

    Framebuffer make(const PassChain::Source &source, const QSize &size)
    {
        Framebuffer target = takeFramebuffer(size, false, source.edge);
        return target && fillFramebuffer(m_passes.functions(), *target, source.image) ? std::move(target) : nullptr;
    }

    Framebuffer make(const PassChain::Pass &pass, const QSize &size)
    {
        std::vector<GLuint> names;
        for (const Picture input : pass.inputs)
            names.push_back(m_made[size_t(input)]->texture());
        Framebuffer nothing;
        if (names.empty()) { // a pass has at least one texture
            QImage pixel(1, 1, QImage::Format_RGBA8888);
            pixel.fill(Qt::transparent);
            nothing = createFramebuffer(m_passes.functions(), pixel.size());
            const bool filled = nothing && fillFramebuffer(m_passes.functions(), *nothing, pixel);
            names.push_back(filled ? nothing->texture() : 0);
        }
        Framebuffer target = takeFramebuffer(size, pass.keepsRedOnly, pass.edge);
        return m_passes.drawPass(pass.shaderId, names, target.get(), pass.uniforms) ? std::move(target) : nullptr;
    }

    Framebuffer make(const PassChain::Stack &stack, const QSize &size)
    {
        Framebuffer target = takeFramebuffer(size, false, TextureEdge::Clamp);
        if (!target)
            return nullptr;
        const auto draw = [&](Picture picture, const QPoint &place) {
            if (const QImage *image =
                    sourceImage(m_chain, picture)) // even one that is there already: drawing takes longer
                return fillFramebuffer(m_passes.functions(), *target, *image, place);
            const GLuint name = m_made[size_t(picture)]->texture();
            return m_passes.drawPass(u"textureCopy"_s, {&name, 1}, target.get(), {}, {place, m_chain.size(picture)});
        };
        const bool drawn = draw(stack.inputs[0], {}) && draw(stack.inputs[1], stack.mapOrigin);
        return drawn ? std::move(target) : nullptr;
    }

    Framebuffer takeFramebuffer(const QSize &size, bool keepsRedOnly, TextureEdge edge)
    {
        if (!m_spare)
            return createFramebuffer(m_passes.functions(), size, edge, keepsRedOnly);
        setTextureEdge(m_passes.functions(), m_spare->texture(), edge);
        return std::move(m_spare);
    }

    /// Of what no step after this one reads, one picture serves the next step if it is of its kind; the rest goes.
    void letGoOfInputs(qsizetype step)
    {
        qint64 freed = 0;
        for (const Picture input : inputsOf(m_chain, m_chain.steps()[step])) {
            Framebuffer &framebuffer = m_made[size_t(input)];
            if (m_lastUse[qsizetype(input)] != step || !framebuffer)
                continue;
            if (!m_spare && servesStepAfter(step, *framebuffer)) {
                m_spare = std::move(framebuffer);
                continue;
            }
            freed += bytes(framebuffer->size(), keepsRedOnly(*framebuffer));
            framebuffer.reset();
        }
        // As a QImage the result takes the place of as much.
        const qint64 takenUp = step == m_result ? bytes(m_chain.steps()[step].size, false) : 0;
        if (freed > std::max(takenUp, kWorthGivingBack))
            m_passes.giveMemoryBack();
    }

    bool servesStepAfter(qsizetype step, const QOpenGLFramebufferObject &framebuffer) const
    {
        do {
            ++step;
        } while (step < m_chain.steps().size() && m_lastUse[step] == kNever);
        if (step == m_chain.steps().size() || m_chain.steps()[step].size != framebuffer.size())
            return false;
        const auto *pass = std::get_if<PassChain::Pass>(&m_chain.steps()[step].work);
        return keepsRedOnly(framebuffer) == (pass && pass->keepsRedOnly);
    }

    static bool keepsRedOnly(const QOpenGLFramebufferObject &framebuffer)
    {
        return framebuffer.format().internalTextureFormat() == GL_R8;
    }

    static qint64 bytes(const QSize &size, bool redOnly)
    {
        return qint64(size.width()) * size.height() * (redOnly ? 1 : kBytesPerPixel);
    }

    FilterPassDrawer &m_passes;
    const PassChain &m_chain;
    qsizetype m_result;
    QList<qsizetype> m_lastUse; ///< the last step that reads each picture; kNever for one that the result needs not
    std::vector<Framebuffer> m_made;
    Framebuffer m_spare; ///< for the next step
};

} // namespace

QImage runPassChain(FilterPassDrawer &passes, OffscreenContext &context, const PassChain &chain, Picture result)
{
    const PassChain::Step &last = chain.steps()[qsizetype(result)];
    if (const auto *source = std::get_if<PassChain::Source>(&last.work))
        return source->image;

    const CurrentContext current(context); // outlives the run, whose end deletes what is left
    PassChainRun run(passes, chain, result);
    if (!run.fitsShaders() || !current || !run.carryOut())
        return {};
    return run.read();
}

} // namespace zm
