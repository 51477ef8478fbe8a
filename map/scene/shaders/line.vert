#version 440

layout(location = 0) in vec2 position; // on the line, in item pixels
layout(location = 1) in vec2 offset;   // halves of the line's width
layout(location = 2) in vec4 colorAndCorner;

layout(location = 0) out vec3 color;
layout(location = 1) out vec2 place; // across the line and beyond its end, in halves of its width

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 color;  // rgb and 1 to draw all lines in one colour; else w = 0
    vec4 casing; // premultiplied
    vec4 widths; // half of the core, of the whole, of what is drawn; device pixels per item pixel
} block;

out gl_PerVertex { vec4 gl_Position; };

void main() {
    float corner = floor(colorAndCorner.a * 255.0 + 0.5);
    float tip = step(1.5, corner);
    place = vec2((corner - 2.0 * tip) * 2.0 - 1.0, tip);
    color = mix(colorAndCorner.rgb, block.color.rgb, block.color.w);
    gl_Position = block.itemToClip * vec4(position + offset * block.widths.z, 0.0, 1.0);
}
