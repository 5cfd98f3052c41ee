"""Run by Blender: prints how many faces and lines a .glb has and its bounds, in the words of our report, and makes a
picture of a second one. Every face that Blender makes of a .glb is a triangle; a mesh counts in each object that shows it."""
import math
import os
import sys

import numpy
numpy.bool = bool  # the importer knows it by the name that newer versions of numpy have dropped
import bpy  # noqa: E402
from mathutils import Vector  # noqa: E402

counted, shown, picture = sys.argv[sys.argv.index('--') + 1:]


def load(path):
    """The objects with a mesh, and the lowest and highest corner of all."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    bpy.ops.import_scene.gltf(filepath=path)
    objects = [each for each in bpy.context.scene.objects if each.type == 'MESH']
    points = [each.matrix_world @ vertex.co for each in objects for vertex in each.data.vertices]
    return objects, [min(axis) for axis in zip(*points)], [max(axis) for axis in zip(*points)]


def new_object(kind, data):
    made = bpy.data.objects.new(kind, data)
    bpy.context.scene.collection.objects.link(made)
    return made


def add_view(lowest, highest):
    """A camera that looks as ours does at first: from the front and the right, from above."""
    view = bpy.data.cameras.new('camera')
    view.angle, view.clip_end = math.radians(30), 1e5
    side, up = math.radians(45), math.radians(30)
    towards = Vector((math.sin(side) * math.cos(up), -math.cos(side) * math.cos(up), math.sin(up)))
    camera = new_object('camera', view)
    camera.rotation_euler = (-towards).to_track_quat('-Z', 'Y').to_euler()
    bpy.context.scene.camera = camera
    bpy.context.view_layer.update()
    corners = [c for x in zip(lowest, highest) for c in x]
    box = [(corners[i], corners[2 + j], corners[4 + k]) for i in (0, 1) for j in (0, 1) for k in (0, 1)]
    camera.location, _ = camera.camera_fit_coords(bpy.context.evaluated_depsgraph_get(), [c for p in box for c in p])


def add_light():
    """A sun that stands as ours does, and a sky."""
    sun = bpy.data.lights.new('sun', 'SUN')
    sun.energy = 3
    new_object('sun', sun).rotation_euler = (math.radians(44), 0, math.radians(-12))
    sky = bpy.data.worlds.new('sky')
    sky.use_nodes = True
    sky.node_tree.nodes['Background'].inputs[0].default_value = (0.55, 0.7, 0.9, 1)
    sky.node_tree.nodes['Background'].inputs[1].default_value = 0.6
    bpy.context.scene.world = sky


def render(path):
    scene = bpy.context.scene
    scene.render.engine = 'CYCLES'
    scene.cycles.samples, scene.cycles.use_denoising = 24, False
    scene.view_settings.view_transform = 'Standard'
    scene.render.resolution_x, scene.render.resolution_y = 900, 600
    scene.render.filepath = path
    bpy.ops.render.render(write_still=True)


objects, lowest, highest = load(counted)
print('faces', sum(len(each.data.polygons) for each in objects))
print('lines', sum(edge.is_loose for each in objects for edge in each.data.edges))
for axis, low, high in zip('xyz', lowest, highest):
    print('bounds', axis, low, 'to', high)
_, lowest, highest = load(shown)
add_view(lowest, highest)
add_light()
render(os.path.abspath(picture))
