#version 440

layout(location = 0) in vec3 position; // x and y in item pixels times w, and w
layout(location = 1) in vec2 texturePlace;

layout(location = 0) out vec2 place;

layout(std140, binding = 0) uniform Block {
    mat4 itemToClip;
    vec4 opacity;
} block;

out gl_PerVertex { vec4 gl_Position; };

void main() {
    place = texturePlace;
    // Within the item's plane the depth is w times a constant: the order of items stays theirs.
    gl_Position = block.itemToClip * vec4(position.xy, 0.0, position.z);
}
